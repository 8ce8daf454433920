#include "Arguments.h"

#include "values/Text.h"

#include <filesystem>
#include <map>
#include <system_error>

namespace trekor {

const char* const HelpText =
    R"(trekor-export [options] FILE.mdb ...

Writes the comma files (.TKR) of closed data files. The data files are only read; an
existing .TKR of the same name is replaced.

  --join               one file for all sessions of a data file, NAME.TKR (default)
  --keep               one file for each session, NAME-01.TKR, NAME-02.TKR ...
  --station-unit 0..5  unit of the stations: 0 kilometers (default), 1 meters, 2 miles,
                       3 mile.feet, 4 feet, 5 yards; stations are written as they are
                       stored, so this must be the unit they were filed in
  --units SI|US        unit system told in the head of the file (default SI)
  --operator NAME      who writes the file, for the head
  --setup NAME         test setup named in the head
  --out FOLDER         where the comma files go (default: beside each data file)
  --version            tell the version
  --help               this text

Files are taken in the order given. The names written are told one a line on standard output;
on a terminal a line on standard error shows how far the present file is. Of a data file
all comma files are written whole or none; one that fails is told and passed over.

Exit codes; with several files the highest counts:
  0  all are written
  1  a file is missing, no data file, not readable, or in use
  2  the options are not understood, or two files would become one; nothing is written
  3  a data file is damaged
  4  a comma file cannot be put in its place: a folder or a data file has its name, it is
     read-only, or its folder is missing or cannot be written; or the list of names cannot
  5  the disk is full
)";

namespace {

bool TakeValue(const std::string& option, const std::string& value, Arguments& into, std::string& error) {
  if (option == "--station-unit") {
    if (value.size() != 1 || value[0] < '0' || value[0] > '5')
      error = "--station-unit wants a number from 0 to 5, not \"" + value + "\"";
    else
      into.stationUnit = value[0] - '0';
  } else if (option == "--units") {
    if (!SameText(value, "SI") && !SameText(value, "US"))
      error = "--units wants SI or US, not \"" + value + "\"";
    into.us = SameText(value, "US");
  } else if (option == "--operator") {
    into.operatorName = value;
  } else if (option == "--setup") {
    into.setup = value;
  } else if (option == "--out") {
    into.out = value;
  } else {
    error = "unknown option " + option + "; see --help";
  }
  return error.empty();
}

bool TakesValue(const std::string& option) {
  return option == "--station-unit" || option == "--units" || option == "--operator" || option == "--setup" ||
         option == "--out";
}

bool TakeOption(const std::string& option, Arguments& into, std::string& error) {
  if (option == "--join" || option == "--keep")
    into.join = option == "--join";
  else if (option == "--help")
    into.help = true;
  else if (option == "--version")
    into.version = true;
  else
    error = "unknown option " + option + "; see --help";
  return error.empty();
}

// One option; `at` moves on to its value when that is the next word.
bool TakeWord(const std::vector<std::string>& words, std::size_t& at, Arguments& into, std::string& error) {
  const std::string& word = words[at];
  const std::size_t equals = word.find('=');
  if (equals != std::string::npos)
    return TakeValue(word.substr(0, equals), word.substr(equals + 1), into, error);
  if (!TakesValue(word))
    return TakeOption(word, into, error);
  if (at + 1 < words.size())
    return TakeValue(word, words[++at], into, error);
  error = word + " wants a value";
  return false;
}

// Names that differ in case alone are one name on an office's disk. "" when each file gives its own.
std::string TwoOfOneName(const Arguments& wishes) {
  namespace fs = std::filesystem;
  std::map<std::string, std::string> names;
  for (const std::string& file : wishes.files) {
    std::error_code error;
    const fs::path path = file, folder = wishes.out.empty() ? path.parent_path() : fs::path(wishes.out);
    const fs::path whole =
        fs::weakly_canonical(fs::absolute(folder.empty() ? "." : folder), error) / Trim(path.stem().string());
    const auto [other, fresh] = names.emplace(Lower(whole.string()), file);
    if (!fresh)
      return other->second + " and " + file + " would become one comma file";
  }
  return "";
}

} // namespace

bool ReadArguments(const std::vector<std::string>& words, Arguments& into, std::string& error) {
  error.clear();
  bool onlyFiles = false; // behind "--"
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (onlyFiles || !word.starts_with("--"))
      into.files.push_back(word);
    else if (word == "--")
      onlyFiles = true;
    else if (!TakeWord(words, i, into, error))
      return false;
  }
  if (into.files.empty() && !into.help && !into.version)
    error = "no data file given; see --help";
  if (error.empty())
    error = TwoOfOneName(into);
  return error.empty();
}

} // namespace trekor
