#include "program/Program.h"

// Here every room of the logic comes together: one that is built with the toolkit shows.
#if __has_include(<QString>)
#error "the logic is built without the toolkit"
#endif

namespace trekor {

Program::Program(Platform& p)
    : platform(p), SendKeysObject(p), texts(state, p), messages(state, p, texts), options(state, p, messages),
      setupDatabase(state, p), setup(state, setupDatabase, form.imlObsPicsUCaseKeys), dataFiles(state, p),
      comma(state, p, dataFiles), socket(state, p, texts, form), sections(state, p, socket),
      fileNew(state, p, texts, messages, sections),
      measurements(form, RunRooms{state, p, texts, messages, options, sections, setupDatabase, setup, dataFiles, comma,
                                  socket, fileNew, SendKeysObject}),
      dispatcher(state, p, socket, sections, measurements) {
  // Sending is low in the house, dispatching is high: here the circle of run and link is closed.
  socket.dispatch = [this](std::string_view line) { dispatcher.Dispatch(line); };
  measurements.unloadMainForm = [this] { UnloadMainForm(); };
  form.OnUnload = [this] { UnloadMainForm(); };
}

Program::~Program() = default;

} // namespace trekor
