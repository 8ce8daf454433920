// The forms on data files, for who opens them and for a link that makes them pointless.
#pragma once

#include "datafiles/FileNewDialog2.h"

namespace trekor {

class FileDialogs {
private:
  std::string folder; // chosen last in any of them

public:
  FileDialogs(ProgramState& state, Platform& platform, TextDatabase& texts, MessageCatalogue& messages,
              Sections& sections)
      : fileNew({state, platform, texts, messages, folder}, sections) {}
  // Hides the one that is shown, as a cancel does, with whatever is shown above it.
  void GiveWay() { fileNew.GiveWay(); }
  void Unload() { fileNew.Unload(); }

  FileNewDialog2 fileNew;
};

} // namespace trekor
