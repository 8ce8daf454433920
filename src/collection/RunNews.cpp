#include "collection/RunNews.h"

#include "link/Outgoing.h"

namespace trekor {

namespace {
constexpr double LinkPause = 1; // seconds between PREPARE and START, and behind START
} // namespace

// "SET SYSTEM TREKOR UNKNOWN 7707-104". Sent after the first connection attempt, as it would be dropped before.
void RunNews::Send_SystemInfo() {
  socket.WaitForFirstConnection();
  socket.SendData(std::string("SET SYSTEM TREKOR ") + (state.run.Simulator ? "SIMULATOR" : "UNKNOWN") + " " +
                  state.command.HardwareName);
}

void RunNews::SendUnits() {
  trekor::SendUnits(state, socket);
}

void RunNews::Set_DMI() {
  trekor::Set_DMI(state, socket);
}

void RunNews::SendDmi() {
  trekor::SendDmi(state, socket);
}

void RunNews::SendClick() {
  socket.SendData("EVENT CLICK");
}

// "CTRL PREPARE  12.3", "STATUS PREPARE  12.3", a second, "CTRL START  12.3", "STATUS START  12.3  0 1", a second.
// Nothing for a start by the link, unless a message within a pump has cleared FromLink.
bool RunNews::AnnounceStart() {
  const Positions& at = state.position;
  if (FromLink())
    return true;
  socket.SendData("CTRL PREPARE " + WireNumber(at.KeyStation.Default()));
  socket.SendData("STATUS PREPARE " + WireNumber(at.KeyStation.Default()));
  socket.WaitSeconds(LinkPause);
  if (stage.Ending())
    return false;
  socket.SendData("CTRL START " + WireNumber(at.KeyStation.Default()));
  socket.SendData("STATUS START " + WireNumber(at.KeyStation.Default()) + " " +
                  WireNumber(at.KeyStation.Default() - at.DmiAtStart) + (at.DmiIncreasing ? " 1" : " -1"));
  socket.WaitSeconds(LinkPause);
  stage.LetEventsIn();
  return !stage.Ending();
}

void RunNews::AnnouncePause() {
  if (!FromLink())
    socket.SendData("CTRL PAUSE");
}

void RunNews::AnnounceResume() {
  if (FromLink())
    return;
  socket.SendData("CTRL START");
  socket.SendData("STATUS START");
}

bool RunNews::AnnounceStop() {
  if (FromLink())
    return false;
  socket.SendData("CTRL STOP " + WireNumber(state.position.KeyStation.Default()));
  socket.SendData("STATUS STOP " + WireNumber(state.position.KeyStation.Default()));
  return true;
}

// "FILE PATH D:\Roads", "FILE BACKUPPATH ", "FILE NAME ROAD09", "FILE EXTENSION MDB", "FILE GUID 00..FF",
// "FILE SESSION 1", "FILE OPEN", in one send.
void RunNews::AnnounceFile() {
  if (FromLink() || !state.run.DataFileOpen)
    return;
  const auto& file = state.file;
  socket.SendData("FILE PATH " + file.DataPath + "\r\nFILE BACKUPPATH " + file.BackupPath + "\r\nFILE NAME " +
                  file.DataName + "\r\nFILE EXTENSION MDB\r\nFILE GUID " + file.DataGuid + "\r\nFILE SESSION " +
                  std::to_string(file.SessionID) + "\r\nFILE OPEN");
}

void RunNews::AnnounceClose() {
  socket.SendData("FILE CLOSE");
}

} // namespace trekor
