// What the run sends to the control program. Effects of the control program's own commands are not sent back: FromLink
// is read afresh at each line, as a command that came in an earlier pump may have ended.
#pragma once

#include "collection/RunStage.h"
#include "link/SocketProp.h"
#include "state/ProgramState.h"

namespace trekor {

class RunNews {
public:
  RunNews(const ProgramState& state, SocketProp& socket, const RunStage& stage)
      : state(state), socket(socket), stage(stage) {}

  // While it exists, lines of the link wait.
  [[nodiscard]] SocketProp::Hold HoldLines() const { return SocketProp::Hold(socket); }
  bool FromLink() const { return state.run.FromLink; }

  void Send_SystemInfo();
  void SendUnits();
  void Set_DMI();
  void SendDmi();
  void SendClick(); // of the camera

  // Takes two seconds, in which events run. False when an exit came in them.
  bool AnnounceStart();
  void AnnouncePause();
  void AnnounceResume();
  bool AnnounceStop(); // true: it was sent
  void AnnounceFile();
  // Sent also when the control program has asked for the close: control programs rely on it.
  void AnnounceClose();

private:
  const ProgramState& state;
  SocketProp& socket;
  const RunStage& stage;
};

} // namespace trekor
