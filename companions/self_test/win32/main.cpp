// The entry point of QDIXTEST.EXE: runs the checks in order, writes the log and says where it is.
#include <windows.h>

#include <memory>

#include "app/version.h"
#include "base/numbers.h"
#include "os/win32/win32_system.h"
#include "registry/registry_key.h"
#include "registry/registry_paths.h"
#include "runtime/entry.h"
#include "self_test/profile_questions.h"
#include "self_test/reading_checks.h"
#include "self_test/win32/drawing_checks.h"
#include "self_test/win32/machine_facts.h"
#include "self_test/win32/own_places.h"
#include "self_test/win32/round_trip_checks.h"
#include "self_test/win32/system_questions.h"
#include "self_test/win32/window_checks.h"
#include "shell/application_folder.h"

namespace qdix::self_test::win32 {

namespace {

constexpr const char* kTitle = "Q-DIX Self-Test";
constexpr const char* kLogName = "QDIXTEST.LOG";

/// Allocated on the heap: the real system would be too large for a stack frame.
class SelfTest {
 public:
  explicit SelfTest(HINSTANCE instance)
      : instance_(instance),
        report_(real_.GetSystem().files, real_.GetSystem().clock,
                shell::ApplicationFolder(real_.GetSystem().processes) + kLogName,
                TemporaryFolder() + kLogName) {}

  void Run() {
    const os::System& real = real_.GetSystem();
    report_.Line(std::string(kTitle) + " " + base::TextOf(app::kMajorVersion) + "." +
                 base::TextOf(app::kMinorVersion) + "." + base::TextOf(app::kRevision));
    WriteMachineFacts(report_, real);
    report_.Line("");
    report_.Run("Preparing the test key and folder", [this] { return places_.WereCreated(); });
    RunReadingChecks(report_, real, places_.Places().folder);
    RunDrawingChecks(report_);
    RunPrograms();
    AskAboutProfileFiles(report_, real.profile_files, real.files, places_.Places().folder);
    report_.Run("Removing the test key and folder", [this] { return places_.Remove(); });
    // Last: if one of these calls brings a system down, the checks are in the log and nothing is left behind.
    questions::AskAboutSystem(report_);
    report_.Finish();
  }

  /// Shows the result and returns the exit code of the program.
  [[nodiscard]] int ShowResult() {
    if (report_.Path().empty() || report_.IsIncomplete()) {
      Say("The log could not be written. Please copy QDIXTEST.EXE to a folder on the hard disk and start it "
          "there.",
          os::kMbIconExclamation);
      return 2;
    }
    const bool is_ok = report_.Failures() == 0;
    const std::string count = base::TextOf(report_.Checks());
    const std::string result = is_ok ? "All " + count + " checks passed."
                                     : base::TextOf(report_.Failures()) + " of " + count + " checks failed.";
    Say(result + "\r\n\r\nThe log file is " + report_.Path(),
        is_ok ? os::kMbIconInformation : os::kMbIconExclamation);
    return is_ok ? 0 : 1;
  }

 private:
  void Say(const std::string& text, std::uint32_t icon) {
    real_.GetSystem().dialogs.MessageBoxA(text, kTitle, os::kMbOk | icon);
  }

  /// The programs run as on a machine that has had Q-DIX before, and read a copy of this machine's
  /// system.ini.
  void RunPrograms() {
    const auto system = std::make_unique<PrivateSystem>(real_.GetSystem(), places_.Places());
    report_.Run("Preparing the test settings", [this, &system] { return Prepare(*system); });
    const Bench bench{instance_, report_, *system};
    RunWindowChecks(bench);
    RunRoundTripChecks(bench);
  }

  [[nodiscard]] Outcome Prepare(const PrivateSystem& system) const {
    std::array<char, MAX_PATH> windows{};
    if (real_.GetSystem().files.GetWindowsDirectoryA(windows.data(), windows.size()) >= windows.size()) {
      return Outcome::Failed("the Windows folder is unknown");
    }
    const std::string source = std::string(windows.data()) + "\\system.ini";
    const std::string target = places_.Places().folder + "\\system.ini";
    if (!system.GetSystem().files.CopyFileA(source.c_str(), target.c_str())) {
      return Outcome::Failed("system.ini cannot be copied to " + target);
    }
    auto machine = registry::RegistryKey::Create(system.GetSystem().registry, os::kHkeyLocalMachine,
                                                 registry::kMachineKey);
    return Outcome::Expect(machine.WriteText("HasRun", "1"), "the registry key cannot be written");
  }

  HINSTANCE instance_;
  os::win32::Win32System real_;
  OwnPlacesKeeper places_;
  Report report_;
};

}  // namespace

}  // namespace qdix::self_test::win32

extern "C" int QdixMain(void* instance, int /*show_command*/) {
  const auto test = std::make_unique<qdix::self_test::win32::SelfTest>(static_cast<HINSTANCE>(instance));
  test->Run();
  return test->ShowResult();
}
