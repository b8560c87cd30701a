#include "tests/e2e/session.h"

#include "tests/e2e/driver/help_windows.h"

namespace qdix::e2e {

namespace {

/// The registry is that of the prefix, which a user of the checkout may also have used.
class RegistryKeeper : public testing::Environment {
 public:
  void TearDown() override { before_.PutBack(); }

 private:
  const ProgramRegistry before_;
};

[[maybe_unused]] const testing::Environment* const kRegistryKeeper =
    testing::AddGlobalTestEnvironment(new RegistryKeeper);

}  // namespace

void Session::SetUp() {
  ProgramRegistry::Clear();
  ShippedProgram other;
  ASSERT_FALSE(other.Attach()) << "a copy of the program is already running";
}

void Session::TearDown() {
  if (HasFailure()) {
    const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
    EXPECT_TRUE(Photograph("failed_" + name));
  }
  for (const MessageBox& box : program.MessageBoxes()) ADD_FAILURE() << "still open: " << box.text;
  program.Kill();
  EXPECT_TRUE(CloseHelpWindows()) << "a viewer of the help stays open";
  ProgramRegistry::Clear();
}

void Session::StartCopy(ShippedProgram& copy) {
  ASSERT_TRUE(copy.Start());
  ASSERT_TRUE(copy.WaitForWindow());
  ASSERT_TRUE(copy.WaitForFirstReading());
}

void Session::CloseCopy(const ShippedProgram& copy) {
  copy.Close();
  ExpectCleanEnd(copy);
}

void Session::ExpectCleanEnd(const ShippedProgram& copy) {
  EXPECT_EQ(copy.WaitForExit(), 0);
  EXPECT_FALSE(copy.HasIcon()) << "the icon was left behind";
}

}  // namespace qdix::e2e
