// The "Cache Settings" tab: what it reads, and what presets and the user change.
#include <gtest/gtest.h>

#include "tests/support/tuning_rig.h"
#include "tuning/cache/cache_presets.h"

namespace qdix::tests {
namespace {

constexpr double kSizesMb[] = {8, 16, 31.9, 32, 32.99, 33, 48, 64, 96, 128, 255, 256, 384, 512};

void StoreTemplate(TuningRig& rig, const char* name, const std::string& bytes) {
  rig.machine.SetRegistryBytes(os::kHkeyLocalMachine, kOwnTemplatePath, name, os::kRegBinary, bytes);
}

/// What the tab shows of one setting: value, whether it can be moved, caption.
struct Shown {
  std::int32_t value;
  bool enabled;
  std::string caption;

  bool operator==(const Shown&) const = default;
};
void PrintTo(const Shown& shown, std::ostream* out) {
  *out << shown.value << (shown.enabled ? " enabled \"" : " disabled \"") << shown.caption << '"';
}

Shown Look(const ui::Slider& slider, const ui::Label& label) {
  EXPECT_EQ(slider.Enabled(), label.Enabled()) << slider.Name();
  return {slider.Value(), slider.Enabled(), label.Caption()};
}

class CacheTab : public testing::Test {
 protected:
  explicit CacheTab(double ram_mb = 64) : rig(ram_mb) {}

  screens::CacheScreen& Tab() { return rig.program->CacheScreen(); }
  void Start() { rig.StartAt(screens::kCacheTab); }
  Shown Min() { return Look(Tab().Slider1, Tab().lblMinCache); }
  Shown Max() { return Look(Tab().Slider2, Tab().lblMaxCache); }
  Shown Chunk() { return Look(Tab().Slider3, Tab().lblChunkSize); }
  Shown Names() { return Look(Tab().Slider4, Tab().lblNameCache); }
  Shown Directories() { return Look(Tab().Slider5, Tab().lblDirectoryCache); }

  TuningRig rig;
};

TEST_F(CacheTab, MachineWithoutSettingsShowsTheDesign) {
  Start();
  EXPECT_EQ(Min(), (Shown{512, false, "Min Cache Size : "}));
  EXPECT_EQ(Max(), (Shown{512, false, "Max Cache Size : "}));
  EXPECT_EQ(Chunk(), (Shown{512, false, "Chunk Size : "}));
  EXPECT_EQ(Names(), (Shown{677, false, "Name Cache : "}));
  EXPECT_EQ(Directories(), (Shown{32, false, "Directory Cache : "}));
  for (const ui::CheckBox* box : {&Tab().Check5, &Tab().Check6, &Tab().Check7, &Tab().Check8}) {
    EXPECT_EQ(box->Value(), 0) << box->Name();
  }
  EXPECT_EQ(Tab().Combo2.Text(), "User-defined");
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_F(CacheTab, PresetListHoldsThirteenEntriesInOrder) {
  Start();
  std::vector<std::string> entries;
  for (int row = 0; row < Tab().Combo2.Count(); ++row) entries.push_back(Tab().Combo2.Item(row));
  EXPECT_EQ(entries,
            (std::vector<std::string>{"User-defined", "Standard System (Win95)", "Standard System (Win98/ME)",
                                      "Power User (Win95)", "Power User (Win98/ME)", "Multimedia (Win95)",
                                      "Multimedia (Win98/ME)", "3D Games (Win95)", "3D Games (Win98/ME)",
                                      "CD Writer (Win95)", "CD Writer (Win98/ME)",
                                      "Low Memory System (Win95)", "Low Memory System (Win98/ME)"}));
}

TEST_F(CacheTab, SlidersReachFrom512To500KilobytesPerMegabyte) {
  Start();
  EXPECT_EQ(Tab().Slider1.Minimum(), 512);
  EXPECT_EQ(Tab().Slider1.Maximum(), 32000);
  EXPECT_EQ(Tab().Slider2.Minimum(), 512);
  EXPECT_EQ(Tab().Slider2.Maximum(), 32000);
  EXPECT_EQ(Tab().Slider3.Minimum(), 512);
  EXPECT_EQ(Tab().Slider3.Maximum(), 4096);
  EXPECT_EQ(Tab().Slider4.Minimum(), 256);
  EXPECT_EQ(Tab().Slider4.Maximum(), 8192);
  EXPECT_EQ(Tab().Slider5.Minimum(), 8);
  EXPECT_EQ(Tab().Slider5.Maximum(), 256);
}

TEST_F(CacheTab, KeysMoveTheSlidersByTheseSteps) {
  Start();
  const auto steps = [](const ui::Slider& slider) {
    return std::pair(slider.Range().small_change, slider.Range().large_change);
  };
  EXPECT_EQ(steps(Tab().Slider1), std::pair(512, 4096));
  EXPECT_EQ(steps(Tab().Slider2), std::pair(512, 4096));
  EXPECT_EQ(steps(Tab().Slider3), std::pair(512, 1024));
  EXPECT_EQ(steps(Tab().Slider4), std::pair(64, 512));
  EXPECT_EQ(steps(Tab().Slider5), std::pair(8, 32));
}

TEST_F(CacheTab, SettingsOfTheMachineAreShown) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=2048\r\nMaxFileCache=8192\r\nChunkSize=1024\r\n");
  StoreTemplate(rig, "NameCache", {'\x51', '\x01', 0, 0});
  StoreTemplate(rig, "PathCache", {'\x10', 0, 0, 0});
  Start();
  EXPECT_EQ(Min(), (Shown{2048, true, "Min Cache Size : 2048 Kb"}));
  EXPECT_EQ(Max(), (Shown{8192, true, "Max Cache Size : 8192 Kb"}));
  EXPECT_EQ(Chunk(), (Shown{1024, true, "Chunk Size : 1024 Kb"}));
  EXPECT_EQ(Names(), (Shown{337, true, "Name Cache : 337"}));
  EXPECT_EQ(Directories(), (Shown{16, true, "Directory Cache : 16"}));
  EXPECT_EQ(Tab().Combo2.Text(), "User-defined");
}

TEST_F(CacheTab, FractionsAreRoundedHalfToEven) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=1000.5\r\nMaxFileCache=2001.5 KB\r\n");
  Start();
  EXPECT_EQ(Min().value, 1000);
  EXPECT_EQ(Max().value, 2002);
}

TEST_F(CacheTab, MinimumAboveTheMachinesLargestIsShownAsNotSet) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=32001\r\nMaxFileCache=32000\r\n");
  Start();
  EXPECT_EQ(Tab().Check5.Value(), 0);
  EXPECT_EQ(Min(), (Shown{512, false, "Min Cache Size : "}));
  EXPECT_EQ(Max(), (Shown{32000, true, "Max Cache Size : 32000 Kb"}));
}

TEST_F(CacheTab, SizesBelow512AreShownAsNotSet) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=511\r\nMaxFileCache=-1\r\n");
  Start();
  EXPECT_EQ(Tab().Check5.Value(), 0);
  EXPECT_EQ(Tab().Check6.Value(), 0);
  EXPECT_EQ(Max(), (Shown{512, false, "Max Cache Size : "}));
}

TEST_F(CacheTab, SizeOf512IsSet) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=512\r\n");
  Start();
  EXPECT_EQ(Min(), (Shown{512, true, "Min Cache Size : 512 Kb"}));
}

TEST_F(CacheTab, MinimumAboveTheMaximumIsShownAsTheMaximum) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=9000\r\nMaxFileCache=4000\r\n");
  Start();
  EXPECT_EQ(Min(), (Shown{4000, true, "Min Cache Size : 4000 Kb"}));
  EXPECT_EQ(Max(), (Shown{4000, true, "Max Cache Size : 4000 Kb"}));
}

TEST_F(CacheTab, MinimumWithoutAMaximumStays) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=9000\r\n");
  Start();
  EXPECT_EQ(Min(), (Shown{9000, true, "Min Cache Size : 9000 Kb"}));
}

TEST_F(CacheTab, ChunkOutsideTheRangeIsSetAndClamped) {
  rig.WriteSystemIni("[vcache]\r\nChunkSize=100000\r\n");
  Start();
  EXPECT_EQ(Chunk(), (Shown{4096, true, "Chunk Size : 4096 Kb"}));
}

TEST_F(CacheTab, ChunkBetweenTwoStepsIsShownUnchanged) {
  rig.WriteSystemIni("[vcache]\r\nChunkSize=700\r\n");
  Start();
  EXPECT_EQ(Chunk(), (Shown{700, true, "Chunk Size : 700 Kb"}));
}

TEST_F(CacheTab, OneTemplateEntryEnablesBothCaches) {
  StoreTemplate(rig, "PathCache", {'\x40', 0, 0, 0});
  Start();
  EXPECT_EQ(Names(), (Shown{677, true, "Name Cache : 677"}));
  EXPECT_EQ(Directories(), (Shown{64, true, "Directory Cache : 64"}));
  EXPECT_EQ(Tab().Check8.Value(), 1);
}

TEST_F(CacheTab, TemplateEntriesOutsideTheRangeAreClampedAndTheCaptionShowsTheSlider) {
  StoreTemplate(rig, "NameCache", {'\x10', '\x27', 0, 0});
  StoreTemplate(rig, "PathCache", {'\xFF', '\xFF', 0, 0});
  Start();
  EXPECT_EQ(Names(), (Shown{8192, true, "Name Cache : 8192"}));
  EXPECT_EQ(Directories(), (Shown{8, true, "Directory Cache : 8"}));
}

// Text, empty, longer and shorter than four bytes.
TEST_F(CacheTab, TemplateEntriesOfAnyTypeAreRead) {
  rig.machine.SetRegistryValue(os::kHkeyLocalMachine, kOwnTemplatePath, "NameCache", "many");
  StoreTemplate(rig, "PathCache", "");
  Start();
  EXPECT_EQ(Names(), (Shown{256, true, "Name Cache : 256"}));
  EXPECT_EQ(Directories(), (Shown{8, true, "Directory Cache : 8"}));
}

TEST_F(CacheTab, PresetSetsEverythingAndStaysNamed) {
  Start();
  EXPECT_TRUE(Tab().Combo2.Choose("Multimedia (Win95)"));
  EXPECT_EQ(Min(), (Shown{4096, true, "Min Cache Size : 4096 Kb"}));
  EXPECT_EQ(Max(), (Shown{8192, true, "Max Cache Size : 8192 Kb"}));
  EXPECT_EQ(Chunk(), (Shown{4096, true, "Chunk Size : 4096 Kb"}));
  EXPECT_EQ(Names(), (Shown{6144, true, "Name Cache : 6144"}));
  EXPECT_EQ(Directories(), (Shown{128, true, "Directory Cache : 128"}));
  EXPECT_EQ(Tab().Combo2.Text(), "Multimedia (Win95)");
}

TEST_F(CacheTab, PresetWithoutAMinimumSetsTheSliderAndLeavesItDisabled) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=2048\r\n");
  Start();
  Tab().Combo2.Choose("Standard System (Win98/ME)");
  EXPECT_EQ(Min(), (Shown{512, false, "Min Cache Size : "}));
  EXPECT_EQ(Tab().Check5.Value(), 0);
  EXPECT_EQ(Max(), (Shown{10240, true, "Max Cache Size : 10240 Kb"}));
}

TEST_F(CacheTab, ChangingABoxAfterAPresetMakesItUserDefined) {
  for (const int number : {5, 6, 7, 8}) {
    rig.StartAt(screens::kCacheTab);
    Tab().Combo2.Choose("CD Writer (Win95)");
    auto* const box = static_cast<ui::CheckBox*>(Tab().page.Find("Check" + std::to_string(number)));
    box->Press();
    EXPECT_EQ(Tab().Combo2.Text(), "User-defined") << number;
    rig.End();
  }
}

TEST_F(CacheTab, BoxEnablesItsSliderAndShowsItsValue) {
  Start();
  Tab().Check5.Press();
  EXPECT_EQ(Min(), (Shown{512, true, "Min Cache Size : 512 Kb"}));
  Tab().Check5.Press();
  EXPECT_EQ(Min(), (Shown{512, false, "Min Cache Size : "}));
  Tab().Check6.Press();
  EXPECT_EQ(Max(), (Shown{512, true, "Max Cache Size : 512 Kb"}));
  Tab().Check7.Press();
  EXPECT_EQ(Chunk(), (Shown{512, true, "Chunk Size : 512 Kb"}));
  Tab().Check8.Press();
  EXPECT_EQ(Names(), (Shown{677, true, "Name Cache : 677"}));
  EXPECT_EQ(Directories(), (Shown{32, true, "Directory Cache : 32"}));
  Tab().Check8.Press();
  EXPECT_EQ(Names(), (Shown{677, false, "Name Cache : "}));
  EXPECT_EQ(Directories(), (Shown{32, false, "Directory Cache : "}));
}

TEST_F(CacheTab, MinimumPushesTheMaximumUp) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=1024\r\nMaxFileCache=2048\r\n");
  Start();
  Tab().Slider1.Drag(2048);
  EXPECT_EQ(Max().value, 2048);
  Tab().Slider1.Drag(3000);
  EXPECT_EQ(Min(), (Shown{3000, true, "Min Cache Size : 3000 Kb"}));
  EXPECT_EQ(Max(), (Shown{3000, true, "Max Cache Size : 3000 Kb"}));
}

TEST_F(CacheTab, MaximumPushesTheMinimumDown) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=1024\r\nMaxFileCache=2048\r\n");
  Start();
  Tab().Slider2.Drag(1000);
  EXPECT_EQ(Min(), (Shown{1000, true, "Min Cache Size : 1000 Kb"}));
  EXPECT_EQ(Max(), (Shown{1000, true, "Max Cache Size : 1000 Kb"}));
}

TEST_F(CacheTab, PushedSliderThatIsNotEnabledShowsNoValue) {
  Start();
  Tab().Check5.Press();
  Tab().Slider1.Drag(4096);
  EXPECT_EQ(Max(), (Shown{4096, false, "Max Cache Size : "}));
}

TEST_F(CacheTab, EachSliderShowsItsValueAndEndsThePreset) {
  Start();
  const auto moved = [&](ui::Slider& slider, std::int32_t value) {
    Tab().Combo2.Choose("CD Writer (Win98/ME)");
    EXPECT_EQ(Tab().Combo2.Text(), "CD Writer (Win98/ME)");
    slider.Drag(value);
    EXPECT_EQ(Tab().Combo2.Text(), "User-defined") << slider.Name();
  };
  moved(Tab().Slider1, 1000);
  EXPECT_EQ(Min().caption, "Min Cache Size : 1000 Kb");
  moved(Tab().Slider2, 20000);
  EXPECT_EQ(Max().caption, "Max Cache Size : 20000 Kb");
  moved(Tab().Slider3, 4096);
  EXPECT_EQ(Chunk().caption, "Chunk Size : 4096 Kb");
  moved(Tab().Slider4, 300);
  EXPECT_EQ(Names().caption, "Name Cache : 300");
  moved(Tab().Slider5, 9);
  EXPECT_EQ(Directories().caption, "Directory Cache : 9");
}

TEST_F(CacheTab, UserMovesTheChunkInStepsOf512) {
  rig.WriteSystemIni("[vcache]\r\nChunkSize=700\r\n");
  Start();
  Tab().Slider3.Drag(1300);
  EXPECT_EQ(Chunk(), (Shown{1536, true, "Chunk Size : 1536 Kb"}));
  Tab().Slider3.Drag(600);
  EXPECT_EQ(Chunk(), (Shown{512, true, "Chunk Size : 512 Kb"}));
}

TEST_F(CacheTab, UserDefinedChangesNothing) {
  Start();
  Tab().Combo2.Choose("Power User (Win98/ME)");
  Tab().Combo2.Choose("User-defined");
  EXPECT_EQ(Max(), (Shown{8192, true, "Max Cache Size : 8192 Kb"}));
  EXPECT_EQ(Tab().Combo2.Text(), "User-defined");
}

TEST_F(CacheTab, ViewingAndMovingWritesNothing) {
  rig.WriteSystemIni("[vcache]\r\nMaxFileCache=2048\r\n");
  Start();
  const std::size_t before = rig.machine.Calls().size();
  Tab().Combo2.Choose("3D Games (Win95)");
  Tab().Slider2.Drag(9000);
  Tab().Check7.Press();
  Tab().Command14.Press();
  EXPECT_TRUE(rig.Changes(before).empty());
  EXPECT_EQ(rig.SystemIni(), "[vcache]\r\nMaxFileCache=2048\r\n");
}

// Each preset on machines of every size: applied, saved, and read at the next start.
class SavedPreset : public testing::TestWithParam<double> {
 protected:
  /// Returns what the tab shows after the preset was saved and the program started again.
  static std::string AfterRestart(double ram_mb, std::string_view preset) {
    TuningRig rig(ram_mb);
    rig.StartAt(screens::kCacheTab);
    EXPECT_TRUE(rig.program->CacheScreen().Combo2.Choose(preset)) << preset;
    rig.Answer({os::kIdYes, os::kIdNo});
    rig.program->CacheScreen().Command11.Press();
    rig.Restart(screens::kCacheTab);
    return rig.program->CacheScreen().Combo2.Text();
  }

  /// The presets with the same values as another on small machines, and the name that is shown for them.
  static std::string_view Expected(double ram_mb, std::string_view preset) {
    const bool is_small = ram_mb < 33;
    if (is_small && preset == "Low Memory System (Win95)") return "Low Memory System (Win98/ME)";
    if (is_small && preset == "Multimedia (Win95)") return "Multimedia (Win98/ME)";
    return preset;
  }
};

TEST_P(SavedPreset, IsRecognisedAtTheNextStart) {
  for (const tuning::CachePreset& preset : tuning::CachePresets()) {
    EXPECT_EQ(AfterRestart(GetParam(), preset.name), Expected(GetParam(), preset.name));
  }
}

TEST_P(SavedPreset, StaysInsideTheSliders) {
  TuningRig rig(GetParam());
  rig.StartAt(screens::kCacheTab);
  screens::CacheScreen& tab = rig.program->CacheScreen();
  for (const tuning::CachePreset& preset : tuning::CachePresets()) {
    tab.Combo2.Choose(preset.name);
    const auto values = preset.For(GetParam());
    ASSERT_TRUE(values.Ok());
    EXPECT_EQ(tab.Slider1.Value(), values.Value().min_cache_kb) << preset.name;
    EXPECT_EQ(tab.Slider2.Value(), values.Value().max_cache_kb) << preset.name;
    EXPECT_EQ(tab.Slider3.Value(), values.Value().chunk_kb) << preset.name;
    EXPECT_EQ(tab.Slider4.Value(), values.Value().name_cache) << preset.name;
    EXPECT_EQ(tab.Slider5.Value(), values.Value().directory_cache) << preset.name;
  }
}

INSTANTIATE_TEST_SUITE_P(OnEachMachine, SavedPreset, testing::ValuesIn(kSizesMb));

TEST_F(CacheTab, GamesSettingsWithAnotherMaximumAreUserDefined) {
  rig.WriteSystemIni("[vcache]\r\nMaxFileCache=3073\r\nChunkSize=4096\r\n");
  StoreTemplate(rig, "NameCache", {0, '\x08', 0, 0});
  StoreTemplate(rig, "PathCache", {'\x30', 0, 0, 0});
  Start();
  EXPECT_EQ(Names().value, 2048);
  EXPECT_EQ(Directories().value, 48);
  EXPECT_EQ(Tab().Combo2.Text(), "User-defined");
}

TEST_F(CacheTab, GamesSettingsAreRecognised) {
  rig.WriteSystemIni("[vcache]\r\nMaxFileCache=3072\r\nChunkSize=4096\r\n");
  StoreTemplate(rig, "NameCache", {0, '\x08', 0, 0});
  StoreTemplate(rig, "PathCache", {'\x30', 0, 0, 0});
  Start();
  EXPECT_EQ(Tab().Combo2.Text(), "3D Games (Win95)");
}

class SmallMachine : public CacheTab {
 protected:
  SmallMachine() : CacheTab(32) {}
};

TEST_F(SmallMachine, MachineOf32MbUsesTheSmallSizes) {
  Start();
  Tab().Combo2.Choose("CD Writer (Win95)");
  EXPECT_EQ(Min().value, 1024);
  EXPECT_EQ(Max().value, 1024);
}

class MachineOf33Mb : public CacheTab {
 protected:
  MachineOf33Mb() : CacheTab(33) {}
};

TEST_F(MachineOf33Mb, DoesNotUseTheSmallSizes) {
  Start();
  Tab().Combo2.Choose("CD Writer (Win95)");
  EXPECT_EQ(Min().value, 3072);
  EXPECT_EQ(Max().value, 3072);
}

// Totals of 2 GB and more read as negative: the sliders have only one value, and nothing breaks.
TEST(CacheTabOnAHugeMachine, LeavesTheSlidersAtTheirMinimum) {
  TuningRig rig;
  rig.machine.SetMemory(0xF0000000U, 0x10000000U, 0xF0000000U, 0x10000000U);
  rig.WriteSystemIni("[vcache]\r\nMaxFileCache=2048\r\n");
  rig.StartAt(screens::kCacheTab);
  EXPECT_EQ(rig.program->CacheScreen().Slider2.Value(), 512);
  EXPECT_EQ(rig.program->CacheScreen().Check6.Value(), 0);
  rig.program->CacheScreen().Combo2.Choose("Standard System (Win95)");
  EXPECT_EQ(rig.program->CacheScreen().Slider2.Value(), 512);
  EXPECT_FALSE(rig.program->Form().Unloaded());
}

}  // namespace
}  // namespace qdix::tests
