// The "Cache Settings" tab of the shipped exe: what it shows of the machine, what presets and the user
// change, and what a save asks and writes, byte for byte.
#include <array>

#include "screens/main_window.h"
#include "tests/e2e/driver/drop_down.h"
#include "tests/e2e/driver/ranges.h"
#include "tests/e2e/machine.h"
#include "tests/e2e/tuning_session.h"

namespace qdix::e2e {
namespace {

constexpr const char* kSaveQuestion = "Are you sure you want to save these new cache settings?";
constexpr const char* kUserDefined = "User-defined";

/// What the tab shows; the text of a size that is not set ends at the colon.
struct Sizes {
  std::string preset;
  int min_kb = 512;
  bool min_set = false;
  int max_kb = 512;
  bool max_set = false;
  int chunk_kb = 512;
  bool chunk_set = false;
  int names = 677;
  int folders = 32;
  bool file_cache_set = false;
};

std::string Kilobytes(bool is_set, int size_kb) { return is_set ? std::to_string(size_kb) + " Kb" : ""; }

std::string Entries(bool is_set, int entries) { return is_set ? std::to_string(entries) : ""; }

/// Returns a number as four bytes of the registry.
std::string BinaryValue(int number) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string text = "3:";
  for (int shift = 0; shift < 32; shift += 8) {
    const int byte = number >> shift & 0xFF;
    text += {' ', kDigits[byte >> 4], kDigits[byte & 0xF]};
  }
  return text;
}

class CacheSession : public TuningSession {
 protected:
  void StartOnCacheTab() { StartOnTab(screens::kCacheTab); }

  void ExpectGroup(const std::string& box, const std::string& label, const std::string& slider, bool is_set,
                   const std::string& caption, int position) const {
    EXPECT_TRUE(Becomes([&] { return Shown(label) == caption; }))
        << caption << ", but it shows " << Shown(label);
    EXPECT_EQ(program.IsChecked(box), is_set) << box;
    EXPECT_EQ(program.IsEnabled(label), is_set) << label;
    EXPECT_EQ(program.IsEnabled(slider), is_set) << slider;
    EXPECT_EQ(SliderPosition(program.Control(slider)), position) << slider;
  }
  void Expect(const Sizes& sizes) const {
    ExpectPreset(sizes.preset);
    ExpectGroup("Check5", "lblMinCache", "Slider1", sizes.min_set,
                "Min Cache Size : " + Kilobytes(sizes.min_set, sizes.min_kb), sizes.min_kb);
    ExpectGroup("Check6", "lblMaxCache", "Slider2", sizes.max_set,
                "Max Cache Size : " + Kilobytes(sizes.max_set, sizes.max_kb), sizes.max_kb);
    ExpectGroup("Check7", "lblChunkSize", "Slider3", sizes.chunk_set,
                "Chunk Size : " + Kilobytes(sizes.chunk_set, sizes.chunk_kb), sizes.chunk_kb);
    ExpectGroup("Check8", "lblNameCache", "Slider4", sizes.file_cache_set,
                "Name Cache : " + Entries(sizes.file_cache_set, sizes.names), sizes.names);
    ExpectGroup("Check8", "lblDirectoryCache", "Slider5", sizes.file_cache_set,
                "Directory Cache : " + Entries(sizes.file_cache_set, sizes.folders), sizes.folders);
  }
  void ExpectPreset(const std::string& name) const {
    EXPECT_TRUE(Becomes([&] { return program.HasSelected("Combo2", name); })) << name;
    EXPECT_EQ(program.Text("Combo2"), name);
  }

  void ChooseByArrowKeys(const std::string& preset) const {
    GoTo('P', "Combo2");
    const HWND list = program.Control("Combo2");
    ASSERT_TRUE(ChooseByArrows(list, RowWithText(list, preset))) << preset;
  }
  void Tick(const std::string& box) const {
    ASSERT_FALSE(program.IsChecked(box));
    ASSERT_TRUE(Click(program.Control(box)));
    ASSERT_TRUE(Becomes([&] { return program.IsChecked(box); }));
  }

  /// Presses "Save Settings", answers Yes, then No to the restart.
  void Save() const {
    PressKeyWith(VK_MENU, 'S');
    Answer(kSaveQuestion, IDYES);
    Answer(kRestartQuestion, IDNO);
  }

  /// Presses a key on the focused slider and expects this position.
  void ExpectKeyMoves(int key, const std::string& slider, int position) const {
    PressKey(key);
    EXPECT_TRUE(Becomes([&] { return SliderPosition(program.Control(slider)) == position; }))
        << position << " expected, but it is at " << SliderPosition(program.Control(slider));
  }

  const Machine machine;
  const Sizes multimedia{.preset = "Multimedia (Win98/ME)",
                         .min_kb = machine.CacheKb(0.06),
                         .min_set = true,
                         .max_kb = machine.CacheKb(0.19),
                         .max_set = true,
                         .chunk_kb = 4096,
                         .chunk_set = true,
                         .names = 6144,
                         .folders = 128,
                         .file_cache_set = true};
  const Sizes standard{.preset = "Standard System (Win98/ME)",
                       .max_kb = machine.CacheKb(0.31),
                       .max_set = true,
                       .chunk_kb = 1024,
                       .chunk_set = true,
                       .names = 2048,
                       .folders = 64,
                       .file_cache_set = true};
  const Sizes low_memory{.preset = "Low Memory System (Win95)",
                         .max_kb = machine.CacheKb(0.12),
                         .max_set = true,
                         .chunk_set = true,
                         .names = 337,
                         .folders = 16,
                         .file_cache_set = true};
  const Sizes cd_writer{.preset = "CD Writer (Win95)",
                        .min_kb = machine.CacheKb(0.19),
                        .min_set = true,
                        .max_kb = machine.CacheKb(0.19),
                        .max_set = true,
                        .chunk_kb = 2048,
                        .chunk_set = true,
                        .names = 6144,
                        .folders = 128,
                        .file_cache_set = true};
  const Sizes games{.preset = "3D Games (Win95)",
                    .max_kb = machine.CacheKb(0.1),
                    .max_set = true,
                    .chunk_kb = 4096,
                    .chunk_set = true,
                    .names = 2048,
                    .folders = 48,
                    .file_cache_set = true};
};

TEST_F(CacheSession, FreshMachineShowsNoSizesAndUserDefined) {
  StartOnCacheTab();
  Expect({.preset = kUserDefined});
  for (const char* const slider : {"Slider1", "Slider2"}) {
    EXPECT_EQ(SliderMinimum(program.Control(slider)), 512);
    EXPECT_EQ(SliderMaximum(program.Control(slider)), machine.LargestCacheKb());
  }
  EXPECT_EQ(RowCount(program.Control("Combo2")), 13);
  for (const char* const button : {"Command11", "Command14"}) EXPECT_TRUE(program.IsEnabled(button));
  CloseProgram();
}

TEST_F(CacheSession, SlidersHaveTenMarksForAnyRange) {
  // One more mark where the last interval is shorter, and one at the end.
  constexpr int kMarkIntervals = 12;
  StartOnCacheTab();
  for (const char* const slider : {"Slider1", "Slider2", "Slider3", "Slider4", "Slider5"}) {
    const int marks = SliderMarks(program.Control(slider));
    EXPECT_GE(marks, 2) << slider;
    EXPECT_LE(marks, kMarkIntervals) << slider;
  }
  CloseProgram();
}

TEST_F(CacheSession, PresetsChosenWithArrowKeysSetSlidersCaptionsAndBoxes) {
  StartOnCacheTab();
  for (const Sizes& preset : {multimedia, standard, low_memory, cd_writer, games}) {
    ChooseByArrowKeys(preset.preset);
    Expect(preset);
  }
  CloseProgram();
}

TEST_F(CacheSession, PresetClickedInTheOpenListIsApplied) {
  StartOnCacheTab();
  const HWND list = program.Control("Combo2");
  ASSERT_TRUE(ChooseByPointer(list, RowWithText(list, standard.preset)));
  Expect(standard);
  CloseProgram();
}

TEST_F(CacheSession, EnterAtTheQuestionIsNoAndWritesNothing) {
  const SystemIniKeeper before;
  StartOnCacheTab();
  ChooseByArrowKeys(multimedia.preset);
  PressKeyWith(VK_MENU, 'S');
  ExpectBox(kSaveQuestion);
  EXPECT_EQ(ButtonWithKeyboard(), IDNO);
  PressKey(VK_RETURN);
  EXPECT_TRUE(Becomes([this] { return program.MessageBoxes().empty(); }));
  Expect(multimedia);
  CloseProgram();
  EXPECT_TRUE(before.NothingChanged());
}

TEST_F(CacheSession, FirstSaveWritesSizesTemplateBackupAndRecord) {
  const std::optional<std::string> before = WindowsFile(kSystemIni);
  StartOnCacheTab();
  ChooseByArrowKeys(multimedia.preset);
  Save();
  const std::string min = std::to_string(multimedia.min_kb);
  const std::string max = std::to_string(multimedia.max_kb);
  CloseProgram();
  EXPECT_EQ(SystemIni(),
            "[boot]\r\nshell=Explorer.exe\r\n[386Enh]\r\ndevice=*vpowerd\r\n[vcache]\r\nminfilecache=" + min +
                "\r\nmaxfilecache=" + max + "\r\nchunksize=4096\r\n[drivers]\r\nwave=mmsystem.dll\r\n");
  EXPECT_EQ(WindowsFile(kSystemBackup), before);
  EXPECT_EQ(RegistryBytes(kTemplates, ""), "1: 51 75 6F 6E 64 69 78 00");
  EXPECT_EQ(RegistryBytes(kOwnTemplate, "NameCache"), "3: 00 18 00 00");
  EXPECT_EQ(RegistryBytes(kOwnTemplate, "PathCache"), "3: 80 00 00 00");
  EXPECT_EQ(RegistryBytes(kOwnTemplate, ""), std::nullopt)
      << "the key is created after its caption is written";
  EXPECT_EQ(TextsOf(kMachineKey), (RegistryTexts{{"HasRun", "1"},
                                                 {"FirstSave", "1"},
                                                 {"OldMinCache", "0"},
                                                 {"OldMaxCache", "0"},
                                                 {"OldChunk", "0"},
                                                 {"OldFileCache", "Desktop"}}));
}

TEST_F(CacheSession, RecordHoldsTheOldContentsOfSystemIni) {
  SetSystemIni(
      "[386Enh]\r\nPagingDrive=C:\r\nMinPagingFileSize=131072\r\nMaxPagingFileSize=131072\r\n"
      "[vcache]\r\nMinFileCache=1024\r\nmaxfilecache=8192\r\nchunksize=512\r\n");
  StartOnCacheTab();
  Expect({.preset = kUserDefined,
          .min_kb = 1024,
          .min_set = true,
          .max_kb = 8192,
          .max_set = true,
          .chunk_set = true});
  ChooseByArrowKeys(low_memory.preset);
  Save();
  CloseProgram();
  EXPECT_EQ(SystemIni(),
            "[386Enh]\r\nPagingDrive=C:\r\nMinPagingFileSize=131072\r\nMaxPagingFileSize=131072\r\n"
            "[vcache]\r\nmaxfilecache=" +
                std::to_string(low_memory.max_kb) + "\r\nchunksize=512\r\n");
  EXPECT_EQ(TextsOf(kMachineKey), (RegistryTexts{{"HasRun", "1"},
                                                 {"FirstSave", "1"},
                                                 {"OldMinCache", "1024"},
                                                 {"OldMaxCache", "8192"},
                                                 {"OldChunk", "512"},
                                                 {"OldFileCache", "Desktop"},
                                                 {"OldPagingDrive", "C:"},
                                                 {"OldMinPagingFileSize", "131072"},
                                                 {"OldMaxPagingFileSize", "131072"}}));
}

TEST_F(CacheSession, SecondSaveNamesTheTemplateAndKeepsBackupAndRecord) {
  const std::optional<std::string> before = WindowsFile(kSystemIni);
  StartOnCacheTab();
  ChooseByArrowKeys(multimedia.preset);
  Save();
  const RegistryTexts record = TextsOf(kMachineKey);
  ChooseByArrowKeys(low_memory.preset);
  Save();
  CloseProgram();
  EXPECT_EQ(RegistryBytes(kOwnTemplate, ""), "1: 51 75 6F 6E 64 69 78 20 53 65 74 74 69 6E 67 73 00");
  EXPECT_EQ(RegistryBytes(kOwnTemplate, "NameCache"), "3: 51 01 00 00");
  EXPECT_EQ(RegistryBytes(kOwnTemplate, "PathCache"), "3: 10 00 00 00");
  EXPECT_EQ(WindowsFile(kSystemBackup), before);
  EXPECT_EQ(TextsOf(kMachineKey), record);
  EXPECT_EQ(SystemIniText("vcache", "MinFileCache"), std::nullopt) << "its box is cleared";
  EXPECT_EQ(SystemIniText("vcache", "MaxFileCache"), std::to_string(low_memory.max_kb));
}

TEST_F(CacheSession, SavedPresetsAreRecognisedByTheNextStart) {
  StartOnCacheTab();
  for (const Sizes& preset : {multimedia, cd_writer, low_memory, games}) {
    ChooseByArrowKeys(preset.preset);
    Save();
    CloseProgram();
    EXPECT_EQ(RegistryBytes(kOwnTemplate, "NameCache"), BinaryValue(preset.names));
    EXPECT_EQ(RegistryBytes(kOwnTemplate, "PathCache"), BinaryValue(preset.folders));
    StartOnCacheTab();
    Expect(preset);
  }
  CloseProgram();
}

TEST_F(CacheSession, SystemDefaultsRemoveEverySizeWithTheNextSave) {
  SetSystemIni("[vcache]\r\nminfilecache=" + std::to_string(multimedia.min_kb) +
               "\r\nmaxfilecache=" + std::to_string(multimedia.max_kb) + "\r\nchunksize=4096\r\nother=1\r\n");
  SetRegistryBytes(kOwnTemplate, "NameCache", std::string("\0\x18\0\0", 4));
  SetRegistryBytes(kOwnTemplate, "PathCache", std::string("\x80\0\0\0", 4));
  StartOnCacheTab();
  Expect(multimedia);
  PressKeyWith(VK_MENU, 'Y');
  const Sizes cleared{.preset = kUserDefined,
                      .min_kb = multimedia.min_kb,
                      .max_kb = multimedia.max_kb,
                      .chunk_kb = 4096,
                      .names = 6144,
                      .folders = 128};
  Expect(cleared);
  EXPECT_TRUE(program.MessageBoxes().empty());
  EXPECT_EQ(SystemIniText("vcache", "chunksize"), "4096") << "nothing is written before the save";
  Save();
  CloseProgram();
  EXPECT_EQ(SystemIni(), "[vcache]\r\nother=1\r\n");
  EXPECT_EQ(RegistryBytes(kOwnTemplate, "NameCache"), std::nullopt);
  EXPECT_EQ(RegistryBytes(kOwnTemplate, "PathCache"), std::nullopt);
  EXPECT_EQ(RegistryText(kTemplates, ""), "Quondix");
  StartOnCacheTab();
  Expect({.preset = kUserDefined});
  CloseProgram();
}

TEST_F(CacheSession, YesToTheRestartRequestsOneAndEndsTheProgram) {
  StartOnCacheTab();
  ChooseByArrowKeys(standard.preset);
  PressKeyWith(VK_MENU, 'S');
  Answer(kSaveQuestion, IDYES);
  Answer(kRestartQuestion, IDYES);
  ExpectRestartAndEnd();
  EXPECT_EQ(SystemIniText("vcache", "maxfilecache"), std::to_string(standard.max_kb));
}

TEST_F(CacheSession, SliderMovedByKeysIsUserDefinedAndPushesTheOtherSize) {
  StartOnCacheTab();
  ChooseByArrowKeys(standard.preset);
  Tick("Check5");
  ExpectPreset(kUserDefined);
  ChooseByArrowKeys(standard.preset);
  Tick("Check5");
  GoTo('M', "Slider1");
  ExpectKeyMoves(VK_RIGHT, "Slider1", 1024);
  EXPECT_TRUE(Becomes([this] { return Shown("lblMinCache") == "Min Cache Size : 1024 Kb"; }));
  ExpectPreset(kUserDefined);
  ExpectKeyMoves(VK_NEXT, "Slider1", 1024 + 4096);
  ExpectKeyMoves(VK_PRIOR, "Slider1", 1024);
  EXPECT_EQ(SliderPosition(program.Control("Slider2")), standard.max_kb)
      << "a smaller minimum leaves the maximum alone";
  ExpectKeyMoves(VK_END, "Slider1", machine.LargestCacheKb());
  const std::string largest = std::to_string(machine.LargestCacheKb()) + " Kb";
  EXPECT_TRUE(Becomes([&] { return Shown("lblMinCache") == "Min Cache Size : " + largest; }));
  EXPECT_TRUE(Becomes([&] { return Shown("lblMaxCache") == "Max Cache Size : " + largest; }));
  EXPECT_EQ(SliderPosition(program.Control("Slider2")), machine.LargestCacheKb());
  GoTo('X', "Slider2");
  ExpectKeyMoves(VK_HOME, "Slider2", 512);
  EXPECT_TRUE(Becomes([this] { return Shown("lblMinCache") == "Min Cache Size : 512 Kb"; }));
  EXPECT_TRUE(Becomes([this] { return Shown("lblMaxCache") == "Max Cache Size : 512 Kb"; }));
  EXPECT_EQ(SliderPosition(program.Control("Slider1")), 512) << "the maximum pulls the minimum along";
  CloseProgram();
}

TEST_F(CacheSession, ChunkSliderMovesInStepsOf512) {
  StartOnCacheTab();
  Tick("Check7");
  GoTo('C', "Slider3");
  ExpectKeyMoves(VK_RIGHT, "Slider3", 1024);
  EXPECT_TRUE(Becomes([this] { return Shown("lblChunkSize") == "Chunk Size : 1024 Kb"; }));
  ExpectKeyMoves(VK_NEXT, "Slider3", 2048);
  ExpectKeyMoves(VK_END, "Slider3", 4096);
  ExpectKeyMoves(VK_HOME, "Slider3", 512);
  // From about there on, 50 pixels are about 500 kilobytes, and hardly ever a multiple of 512.
  const HWND slider = program.Control("Slider3");
  ASSERT_TRUE(PullThumb(slider, 57));
  EXPECT_TRUE(Becomes([slider] { return SliderPosition(slider) == 1024; })) << SliderPosition(slider);
  EXPECT_TRUE(Becomes([this] { return Shown("lblChunkSize") == "Chunk Size : 1024 Kb"; }));
  CloseProgram();
}

TEST_F(CacheSession, AccessKeysReachEveryControl) {
  struct Reach {
    char key;
    const char* control;
  };
  StartOnCacheTab();
  GoTo('P', "Combo2");
  for (const Reach& reach :
       {Reach{'E', "Check5"}, Reach{'B', "Check6"}, Reach{'L', "Check7"}, Reach{'F', "Check8"}}) {
    GoTo(reach.key, reach.control);
    EXPECT_TRUE(Becomes([&] { return program.IsChecked(reach.control); })) << reach.control;
  }
  for (const Reach& reach : {Reach{'M', "Slider1"}, Reach{'X', "Slider2"}, Reach{'C', "Slider3"},
                             Reach{'N', "Slider4"}, Reach{'D', "Slider5"}}) {
    GoTo(reach.key, reach.control);
  }
  GoTo('Y', "Command14");
  EXPECT_TRUE(Becomes([this] { return !program.IsChecked("Check5") && !program.IsChecked("Check8"); }));
  PressKeyWith(VK_MENU, 'S');
  Answer(kSaveQuestion, IDNO);
  ExpectKeyboardOn("Command11");
  CloseProgram();
}

TEST_F(CacheSession, SizesBeyondTheMachineAreShownAsNotSet) {
  SetSystemIni("[vcache]\r\nMinFileCache=" + std::to_string(machine.LargestCacheKb() + 1) +
               "\r\nMaxFileCache=" + std::to_string(machine.LargestCacheKb()) + "\r\n");
  StartOnCacheTab();
  Expect({.preset = kUserDefined, .max_kb = machine.LargestCacheKb(), .max_set = true});
  CloseProgram();
}

TEST_F(CacheSession, FilledTabIsPhotographed) {
  StartOnCacheTab();
  ChooseByArrowKeys(multimedia.preset);
  Expect(multimedia);
  PhotographTab("cache_preset");
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
