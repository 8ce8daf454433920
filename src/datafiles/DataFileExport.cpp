#include "datafiles/DataFileExport.h"

#include "datafiles/ExportSessions.h"
#include "datafiles/NewNames.h"
#include "values/Text.h"

namespace trekor {

void DataFileExport::ExportDataFile(const std::string& folder, const std::string& fileName, bool join, bool write) {
  FileNaming& file = state.file;
  const FileNaming next = file;
  file.DataPath = folder;
  file.DataName = Trim(DataNameOf(fileName));
  file.DataFilePath = folder + "\\" + file.DataName + ".mdb";
  if (!file.DataName.empty() && dataFiles.OpenDataFile(OpenMode::Untouched)) {
    ExportSessions(
        file, dataFiles, comma,
        {.join = join, .CheckTKR = write, .loadedObservations = [this](std::int32_t) { return setup.ObsCount(); }});
    dataFiles.CloseDataFile();
  }
  file.DataPath = next.DataPath;
  file.DataName = next.DataName;
  file.DataFilePath = next.DataFilePath;
}

} // namespace trekor
