#include "program/Program.h"

// Includes every room of the logic, so a room that is built with the toolkit stops the build here.
#if __has_include(<QString>)
#error "the logic is built without the toolkit"
#endif

namespace trekor {

Program::Program(Platform& p)
    : platform(p), SendKeysObject(p), texts(state, p), messages(state, p, texts), options(state, p, messages),
      setupDatabase(state, p), setup(state, setupDatabase, form.imlObsPicsUCaseKeys), dataFiles(state, p),
      comma(CommaSourcesOf(state), p.drives, dataFiles), socket(state, p, texts, form), sections(state, p, socket),
      fileNew(state, p, texts, messages, sections),
      measurements(form, RunRooms{state, p, texts, messages, options, sections, setupDatabase, setup, dataFiles, comma,
                                  socket, fileNew, SendKeysObject}),
      dispatcher(state, p.drives, socket, sections, RunOrders(measurements.Subjects())) {
  // The link is below the run and the dispatcher is above it: they are tied together here.
  socket.dispatch = [this](std::string_view line) { dispatcher.Dispatch(line); };
  measurements.Subjects().wayOut.unloadMainForm = [this] { UnloadMainForm(); };
  form.OnUnload = [this] { UnloadMainForm(); };
}

Program::~Program() = default;

} // namespace trekor
