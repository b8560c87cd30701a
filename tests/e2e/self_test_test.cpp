// The shipped self-test: what it finds under Wine, and that it leaves nothing but its log.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <iterator>
#include <map>
#include <regex>
#include <sstream>
#include <utility>

#include "screens/main_window.h"
#include "tests/e2e/driver/cpu_statistics.h"
#include "tests/e2e/driver/file_keeper.h"
#include "tests/e2e/driver/message_boxes.h"
#include "tests/e2e/driver/photograph.h"
#include "tests/e2e/driver/polling.h"
#include "tests/e2e/driver/program_facts.h"
#include "tests/e2e/driver/registry.h"
#include "tests/e2e/strict_log.h"
#include "tests/strict95/machine.h"

namespace qdix::e2e {
namespace {

/// The run opens a dozen windows and pumps ten thousand times.
constexpr int kRunDeadlineMs = 240000;
constexpr const char* kProgram = "QDIXTEST.exe";
constexpr const char* kLog = "QDIXTEST.LOG";
constexpr const char* kOk = "ok";
constexpr std::string_view kAnswer = "answer: ";

std::string TemporaryFolder() {
  std::array<char, MAX_PATH> folder{};
  return {folder.data(), GetTempPathA(folder.size(), folder.data())};
}

/// Returns the file in which the guard of the strict machines writes what a program does; empty without a
/// guard.
std::string GuardLog() {
  std::array<char, MAX_PATH> path{};
  return {path.data(), GetEnvironmentVariableA(kStrictLogVariable, path.data(), path.size())};
}

/// Every file below a folder, with its length and the time of its last change.
using FileStates = std::map<std::string, std::pair<DWORD, std::uint64_t>>;

void AddStates(const std::string& folder, FileStates& states) {
  WIN32_FIND_DATAA found{};
  HANDLE const search = FindFirstFileA((folder + "*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  const std::string guard_log = GuardLog();
  do {
    const std::string name = static_cast<const char*>(found.cFileName);
    const bool is_folder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (name == "." || name == ".." || folder + name == guard_log) continue;
    const FILETIME& time = found.ftLastWriteTime;
    // The time of a folder changes with every file created or deleted in it.
    states[folder + name] =
        is_folder ? std::pair<DWORD, std::uint64_t>()
                  : std::pair(found.nFileSizeLow,
                              static_cast<std::uint64_t>(time.dwHighDateTime) << 32U | time.dwLowDateTime);
    if (is_folder) AddStates(folder + name + "\\", states);
  } while (FindNextFileA(search, &found) != 0);
  FindClose(search);
}

FileStates StatesBelow(const std::string& folder) {
  FileStates states;
  AddStates(folder, states);
  return states;
}

/// Returns the paths that are in only one of both, or differ.
std::string Differences(const FileStates& before, const FileStates& after) {
  std::string paths;
  for (const auto& [path, state] : before) {
    const auto found = after.find(path);
    if (found == after.end() || found->second != state) paths += path + "\n";
  }
  for (const auto& [path, state] : after) {
    if (!before.contains(path)) paths += path + "\n";
  }
  return paths;
}

/// Wine itself creates this key, empty, when windows like those of the program open for the first time in a
/// session. Creating it in advance makes everything else comparable.
void MakeKeyOfWine() {
  HKEY key = nullptr;
  ASSERT_EQ(
      RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\Wine\\Temporary System Parameters\\Control Panel\\Mouse",
                      0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr, &key, nullptr),
      ERROR_SUCCESS);
  RegCloseKey(key);
}

/// What the log has for each check or question by its name, without the time that it took.
using Lines = std::map<std::string, std::string>;

Lines LinesIn(const std::string& log) {
  Lines found;
  std::istringstream lines(log);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t dots = line.find(" ..");
    if (dots == std::string::npos) continue;
    const std::size_t begin = line.find(". ", dots) + 2;
    found[line.substr(0, dots)] = line.substr(begin, line.rfind(", ") - begin);
  }
  return found;
}

/// Result of each check: "ok", or the log's message.
using Results = std::map<std::string, std::string>;

Results ResultsIn(const std::string& log) {
  Results results;
  for (const auto& [name, line] : LinesIn(log)) {
    if (!line.starts_with(kAnswer)) results[name] = line.starts_with(kOk) ? kOk : line;
  }
  return results;
}

/// Answer to each question.
Lines AnswersIn(const std::string& log) {
  Lines answers;
  for (const auto& [name, line] : LinesIn(log)) {
    if (line.starts_with(kAnswer)) answers[name] = line.substr(kAnswer.size());
  }
  return answers;
}

/// A question and the answer of Wine as a regular expression.
struct Answer {
  const char* question;
  const char* expected;
};

constexpr const char* kAddress = "[0-9A-F]{8}, code( [0-9A-F]{2}){12}";
constexpr const char* kVersion = R"(DllGetVersion \d+\.\d+\.\d+, file \d+\.\d+\.\d+\.\d+)";
constexpr const char* kOurControlWord = "027F";

/// Wine writes INI files at once, reads a root without its backslash as the current folder of the drive, has
/// every function, and keeps most numbers.
constexpr Answer kAnswers[] = {
    {"QDIX: foreground window", "of this program"},
    {"INI file: new entry is in the file", "at once"},
    {"INI file: \"(missing)\"", "value kept, default kept"},
    {"INI file: \"\\x01\"", "value kept, default kept"},
    {"INI file: \"none  \"", R"(value read as "none", default read as "none")"},
    {"Address of MoveFileExA", kAddress},
    {"Address of LockFileEx", kAddress},
    {"Address of CreateFileW", kAddress},
    {"Address of CreateMutexW", kAddress},
    {"Address of RegNotifyChangeKeyValue", kAddress},
    {"Address of ToUnicode", kAddress},
    {"Address of MaskBlt", kAddress},
    {"Address of lstrlenW", kAddress},
    {"Size of SCROLLINFO", "24 accepted, 28 accepted, 32 refused"},
    {"Size of TOOLINFO", "40 accepted, 44 accepted, 48 accepted"},
    {"Size of NONCLIENTMETRICS", "340 accepted, 344 accepted"},
    {"Size of WINDOWPLACEMENT", "44 accepted, 48 accepted"},
    {"Size of OSVERSIONINFO", "148 accepted, 156 accepted"},
    {"Later functions",
     "GetDiskFreeSpaceExA, GetLongPathNameA, InterlockedCompareExchange, TrackMouseEvent, MonitorFromWindow, "
     "InitCommonControlsEx"},
    {"Later libraries", "msvcrt.dll, shlwapi.dll, uxtheme.dll"},
    {"Version of comctl32.dll", kVersion},
    {"Version of shell32.dll", kVersion},
    {"Classes of the first common controls",
     "SysTabControl32, msctls_trackbar32, msctls_updown32, tooltips_class32, msctls_progress32, "
     "msctls_hotkey32, SysAnimate32, SysHeader32, msctls_statusbar32, ToolbarWindow32, SysListView32, "
     "SysTreeView32"},
    {"Classes of later common controls",
     "ReBarWindow32, ComboBoxEx32, SysDateTimePick32, SysMonthCal32, SysIPAddress32, SysPager"},
    {"Messages of later common controls", "tip width, 32-bit up-down range, extended tab style"},
    {"16 bits: timer of 65591 ms", R"(no tick within \d+ ms)"},
    {"16 bits: left of a window", "40000 became 32767, 70000 became 32767"},
    {"16 bits: width of a window", "40000 became 32767"},
    {"16 bits: scroll bar", "maximum 70000 kept, position 40000 kept"},
    {"16 bits: control number", "70000 kept"},
    {"16 bits: length of a text",
     R"(1000 characters are \d+ pixels, 8191 characters are \d+ pixels, 8192 characters are \d+ pixels)"},
    {"Drive: GetDiskFreeSpaceEx", R"(C:\\ succeeded, C: succeeded)"},
    {"Drive: GetDiskFreeSpace", R"(C:\\ succeeded, C: succeeded)"},
    {"Drive: GetVolumeInformation", R"(C:\\ succeeded, C: succeeded)"},
    {"Drive: GetDriveType", R"(C:\\ 3, C: 3)"},
    {"Foreground lock", R"(\d+ ms)"},
    {"Later settings", "hot colour, hand cursor, wheel lines, number of monitors"},
    {"Registry key opened twice", "two handles"},
    {"Control word of a new thread", kOurControlWord},
    {"Control word after loading comdlg32.dll", kOurControlWord},
    {"Control word after loading winspool.drv", kOurControlWord},
    {"Control word after a COM object", kOurControlWord},
};

/// A question and the answers of the strict machines as regular expressions.
struct StrictAnswer {
  const char* question;
  const char* rtm;
  const char* windows_98;
};

constexpr StrictAnswer kStrictAnswers[] = {
    {"Later functions", "none",
     "GetDiskFreeSpaceExA, GetLongPathNameA, InterlockedCompareExchange, TrackMouseEvent, MonitorFromWindow, "
     "InitCommonControlsEx"},
    {"Version of comctl32.dll", "DllGetVersion none, file .*", kVersion},
    {"Version of shell32.dll", "DllGetVersion none, file .*", kVersion},
    {"Foreground lock", "no such setting", R"(\d+ ms)"},
    {"Later settings", "none", "hot colour, hand cursor, wheel lines, number of monitors"},
    {"Registry key opened twice", "the same handle", "the same handle"},
};

void ExpectAnswer(const Lines& answers, const char* question, const char* expected) {
  const auto found = answers.find(question);
  ASSERT_NE(found, answers.end()) << question;
  EXPECT_TRUE(std::regex_match(found->second, std::regex(expected))) << question << ": " << found->second;
}

/// The strict machines answer some questions in their own way. Their log still has all of them.
void ExpectAnswers(const Lines& answers) {
  const char* const strict = std::getenv("QDIX_STRICT");
  for (const Answer& one : kAnswers) {
    ExpectAnswer(answers, one.question, strict == nullptr ? one.expected : ".*");
  }
  EXPECT_EQ(answers.size(), std::size(kAnswers));
  if (strict == nullptr) return;
  const bool is_rtm = strict95::ChosenMachine() == strict95::Machine::kRtm;
  for (const StrictAnswer& one : kStrictAnswers) {
    ExpectAnswer(answers, one.question, is_rtm ? one.rtm : one.windows_98);
  }
}

class SelfTest : public testing::Test {
 protected:
  SelfTest() { SetCpuLoad(7); }
  ~SelfTest() override {
    RemoveCpuStatistics();
    if (process_.hProcess == nullptr) return;
    TerminateProcess(process_.hProcess, 1);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }

  /// Runs the program until it says where its log is, and returns that path.
  void Run(const char* photograph) {
    STARTUPINFOA start{};
    start.cb = sizeof start;
    std::string command = '"' + ProgramPath(kProgram) + '"';
    ASSERT_NE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                             &process_),
              0);
    ASSERT_TRUE(Eventually([this] { return !MessageBoxesOf(process_.dwProcessId).empty(); }, kRunDeadlineMs));
    EXPECT_TRUE(Photograph(photograph));
    const MessageBox box = MessageBoxesOf(process_.dwProcessId).front();
    said = box.text;
    ASSERT_TRUE(PressButton(box, IDOK));
    ASSERT_EQ(WaitForSingleObject(process_.hProcess, kDeadlineMs), WAIT_OBJECT_0);
    GetExitCodeProcess(process_.hProcess, &exit_code);
  }

  std::string said;
  DWORD exit_code = STILL_ACTIVE;

 private:
  PROCESS_INFORMATION process_{};
};

TEST_F(SelfTest, FindsEverythingInOrderAndLeavesNothingButItsLog) {
  const FileKeeper log(ProgramPath(kLog));
  ASSERT_NO_FATAL_FAILURE(MakeKeyOfWine());
  const RegistryTree user_before{{HKEY_CURRENT_USER, ""}};
  const RegistryTree machine_before{{HKEY_LOCAL_MACHINE, "Software"}};
  const FileStates files_before = StatesBelow("C:\\");
  ASSERT_FALSE(files_before.empty());

  ASSERT_NO_FATAL_FAILURE(Run("self_test_ok"));

  EXPECT_EQ(Differences(files_before, StatesBelow("C:\\")), "");
  EXPECT_TRUE(RegistryTree({HKEY_CURRENT_USER, ""}) == user_before) << "the user's registry has changed";
  EXPECT_TRUE(RegistryTree({HKEY_LOCAL_MACHINE, "Software"}) == machine_before)
      << "the machine's registry has changed";
  EXPECT_EQ(exit_code, 0U);
  const std::string text = log.Bytes().value_or("");
  const Results results = ResultsIn(text);
  for (const auto& [name, result] : results) EXPECT_EQ(result, kOk) << name;
  for (const ui::Design& page : screens::kTabPages) {
    EXPECT_TRUE(results.contains(std::string("QDIX: tab \"") + page.caption + "\"")) << page.caption;
  }
  for (const char* const name :
       {"Processor load", "Finding a file", "Reading an INI file", "Drawing the graph", "undo: controls",
        "configL: controls", "help: controls", "Releasing 1 MB", "Typing a text", "Reading everything back",
        "Removing the test key and folder"}) {
    EXPECT_TRUE(results.contains(name)) << name;
  }
  ExpectAnswers(AnswersIn(text));
  const std::string count = std::to_string(results.size());
  EXPECT_EQ(said, "All " + count + " checks passed.\r\n\r\nThe log file is " + ProgramPath(kLog));
  EXPECT_NE(text.find("\r\n" + count + " checks, " + count + " ok, 0 failed, "), std::string::npos) << text;
  const bool is_rtm = strict95::ChosenMachine() == strict95::Machine::kRtm;
  const std::string version = is_rtm ? "4.0" : "4.10";
  EXPECT_NE(text.find("\r\nSystem               Windows " + version), std::string::npos) << text;
}

/// Another program holds the file that one check would write, and there is no room for a log beside the
/// program, as on a CD.
TEST_F(SelfTest, LogsFailuresInTheTemporaryFolder) {
  const std::string own_folder = TemporaryFolder() + "QDIXTEST";
  const std::string held_path = own_folder + "\\READ.INI";
  const FileKeeper log(TemporaryFolder() + kLog);
  const FileKeeper unused_log(ProgramPath(kLog));
  ASSERT_NE(CreateDirectoryA(ProgramPath(kLog).c_str(), nullptr), 0);
  ASSERT_NE(CreateDirectoryA(own_folder.c_str(), nullptr), 0);
  HANDLE const held =
      CreateFileA(held_path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);

  Run("self_test_failed");

  CloseHandle(held);
  DeleteFileA(held_path.c_str());
  EXPECT_NE(RemoveDirectoryA(own_folder.c_str()), 0) << "it still holds something else";
  EXPECT_NE(RemoveDirectoryA(ProgramPath(kLog).c_str()), 0);
  EXPECT_EQ(exit_code, 1U);
  Results failed;
  const Results results = ResultsIn(log.Bytes().value_or(""));
  for (const auto& [name, result] : results) {
    if (result != kOk) failed[name] = result;
  }
  EXPECT_EQ(
      failed,
      (Results{{"Reading an INI file", "FAILED: " + held_path + " cannot be created"},
               {"Removing the test key and folder", "FAILED: " + own_folder + " could not be removed"}}));
  EXPECT_EQ(said, "2 of " + std::to_string(results.size()) + " checks failed.\r\n\r\nThe log file is " +
                      log.Path());
}

}  // namespace
}  // namespace qdix::e2e
