// What the run tells the control program. What it has ordered itself isn't sent back to it as news: the flag FromLink
// is read afresh at each line, as an order that came in a pump before may have ended.
#pragma once

#include "collection/RunStage.h"
#include "link/SocketProp.h"
#include "state/ProgramState.h"

namespace trekor {

class RunNews {
public:
  RunNews(const ProgramState& state, SocketProp& socket, const RunStage& stage)
      : state(state), socket(socket), stage(stage) {}

  // While it stands, lines of the link wait.
  [[nodiscard]] SocketProp::Hold HoldLines() const { return SocketProp::Hold(socket); }
  bool FromLink() const { return state.run.FromLink; }

  void Send_SystemInfo();
  void SendUnits();
  void Set_DMI();
  void SendDmi();
  void SendClick(); // of the camera

  // Takes two seconds, with events in them. False when an exit came in these.
  bool AnnounceStart();
  void AnnouncePause();
  void AnnounceResume();
  bool AnnounceStop(); // true: said
  void AnnounceFile();
  // The control program wants to hear it also when it has asked for it.
  void AnnounceClose();

private:
  const ProgramState& state;
  SocketProp& socket;
  const RunStage& stage;
};

} // namespace trekor
