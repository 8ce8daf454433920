// The forms on data files, for who opens them and for a link that makes them pointless.
#pragma once

#include "datafiles/FileExportDialog.h"
#include "datafiles/FileNewDialog2.h"
#include "datafiles/FileOpenDialog.h"

namespace trekor {

class FileDialogs {
public:
  FileDialogs(ProgramState& state, Platform& platform, TextDatabase& texts, MessageCatalogue& messages,
              Sections& sections)
      : rooms{state, platform, texts, messages, folder}, DeletePrompt("DeletePrompt", platform, texts, Preset::No),
        fileNew(rooms, sections), fileOpen(rooms, DeletePrompt), fileExport(rooms, DeletePrompt) {}
  // Hides the one that is shown, as a cancel does, with whatever is shown above it.
  void GiveWay() {
    fileNew.GiveWay();
    fileOpen.GiveWay();
    fileExport.GiveWay();
  }
  void Unload() {
    fileNew.Unload();
    fileOpen.Unload();
    fileExport.Unload();
    DeletePrompt.Unload();
  }

private:
  std::string folder; // chosen last in any of them
  FileDialogRooms rooms;

public:
  YesNoPrompt DeletePrompt; // of both that choose among existing files
  FileNewDialog2 fileNew;
  FileOpenDialog fileOpen;
  FileExportDialog fileExport;
};

} // namespace trekor
