#include "collection/Icons.h"

#include "values/Text.h"

namespace trekor {

void Load_Icons(MeasurementsForm& form, const std::string& folder, Drives& drives) {
  const auto names = drives.Files(folder, "*.*");
  for (ImageList* list : {&form.imlObsPicsUCaseKeys, &form.imlObsPicsDragIcons}) {
    list->Clear();
    for (const auto& name : names)
      list->Add({Upper(name), name, folder + name});
    for (const char* builtIn : {"imgNoIcon", "imgDropNotAllowed", "imgOpenFolder", "imgClosedFolder"})
      list->Add({Upper(builtIn), builtIn, ""});
  }
}

} // namespace trekor
