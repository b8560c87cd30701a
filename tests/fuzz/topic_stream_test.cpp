// Gives the help arbitrary bytes as topics, packed and unpacked, and uses the window at random: nothing
// crashes, and no position is out of bounds. A failing run prints its seed.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "help_viewer/packed_stream.h"
#include "help_viewer/pane_picture.h"
#include "tests/fuzz/corpus.h"
#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

constexpr int kActionsPerRun = 60;

class RandomHelp {
 public:
  explicit RandomHelp(unsigned seed) : random_(seed), rig_(RandomStream()) {}
  RandomHelp(unsigned seed, const std::string& stream) : random_(seed), rig_(stream) {}

  void Run() {
    rig_.Start(Chance(2) ? std::to_string(random_() % 8) : RandomText(6));
    for (int i = 0; i < kActionsPerRun && !rig_.form->Form().Unloaded(); ++i) {
      Act();
      ExpectSound();
    }
    rig_.form->Form().Close();
    EXPECT_TRUE(rig_.form->Form().Unloaded());
    EXPECT_TRUE(rig_.machine.Misuses().empty());
  }

 private:
  [[nodiscard]] bool Chance(unsigned one_in) { return random_() % one_in == 0; }
  [[nodiscard]] int Number(int most) { return static_cast<int>(random_() % static_cast<unsigned>(most + 1)); }

  std::string RandomText(int most) {
    std::string text;
    for (int left = Number(most); left > 0; --left) text += RandomCharacter();
    return text;
  }

  /// Mostly letters and blanks, then the marks of the format, then any byte.
  char RandomCharacter() {
    static constexpr std::string_view kMarks = "\x01\x02\x03\x04\x1F\t0123\n";
    const int kind = Number(9);
    if (kind < 6) return kind == 0 ? ' ' : static_cast<char>('a' + Number(25));
    return kind < 9 ? kMarks[random_() % kMarks.size()] : static_cast<char>(random_());
  }

  std::string RandomStream() {
    static constexpr std::string_view kKinds = "S@@HPPBNTRRCI?";
    std::string stream;
    for (int lines = Number(60); lines > 0; --lines) {
      const char kind = kKinds[random_() % kKinds.size()];
      stream += kind;
      if (kind == '@' || kind == 'N') stream += std::to_string(Number(9)) + "\t";
      if (Chance(3)) stream += "\x03" + std::to_string(Number(9)) + "\x1F" + RandomText(9) + "\x04";
      stream += RandomText(120) + "\n";
    }
    if (Chance(4)) stream.resize(random_() % (stream.size() + 1));
    return stream;
  }

  void Act() {
    help_viewer::HelpScreen& screen = rig_.Screen();
    help_viewer::TopicPane& pane = rig_.Pane();
    switch (Number(15)) {
      case 0:
        return screen.cmdContents.Press();
      case 1:
        return screen.cmdFind.Press();
      case 2:
        return screen.cmdBack.Press();
      case 3:
        return screen.cmdPrint.Press();
      case 4:
        return screen.cmdCopy.Press();
      case 5:
        return screen.lstContents.ChooseIndex(Number(20));
      case 6:
        return rig_.TypeWord(RandomText(3));
      case 7:
        return screen.txtWord.PressEnter();
      case 8:
        return screen.lstFound.DoubleClick(Number(8) - 1);
      case 9:
        return pane.SurfaceChanged(Chance(9) ? nullptr : &rig_.device, Number(500), Number(300));
      case 10:
        return pane.ScrollBy(static_cast<help_viewer::TopicPane::Scroll>(Number(5)));
      case 11:
        return pane.ScrollTo(Number(4000) - 1000);
      case 12:
        return pane.FocusNextLink(Chance(2));
      case 13:
        return pane.PressEnter();
      case 14:
        return pane.Follow(pane.LinkAt(Number(400), Number(300)));
      default:
        return rig_.form->Form().UserResized(
            {static_cast<std::int16_t>(Number(1500)), static_cast<std::int16_t>(Number(1500))});
    }
  }

  void ExpectSound() {
    const help_viewer::TopicPane& pane = rig_.Pane();
    const help_viewer::Layout& layout = pane.TheLayout();
    EXPECT_GE(pane.ScrollPosition(), 0);
    EXPECT_LE(pane.ScrollPosition(), std::max(layout.height - pane.Height(), 0));
    if (!layout.lines.empty()) {
      EXPECT_LE(pane.FocusedLink() + 1, static_cast<int>(layout.links.size()));
    }
    std::size_t line = 0;
    for (const help_viewer::Piece& piece : layout.pieces) {
      EXPECT_GE(piece.line, line) << "the pieces are not in line order";
      line = piece.line;
      ASSERT_LT(line, layout.lines.size());
      EXPECT_LE(piece.top + piece.height, layout.height);
    }
    DrawLayout(rig_.device, layout,
               {.first_px = pane.ScrollPosition(), .end_px = pane.ScrollPosition() + 300}, {}, pane.Marked());
  }

  std::mt19937 random_;
  HelpRig rig_;
};

TEST(TopicStreamFuzz, AnyStreamAndAnyUse) {
  RunSeeds(250, [](unsigned seed) { RandomHelp(seed).Run(); });
}

TEST(TopicStreamFuzz, CorpusWholeAndDamagedAndAnyUse) {
  RunCorpus("topics", 20, [](unsigned seed, const std::string& bytes) { RandomHelp(seed, bytes).Run(); });
}

TEST(TopicStreamFuzz, AnyPackedBytes) {
  RunSeeds(5000, [](unsigned seed) {
    std::mt19937 random(seed);
    std::string packed;
    for (auto left = random() % 400; left > 0; --left) packed += static_cast<char>(random());
    // Mostly sizes that are possible.
    if (packed.size() >= 4 && random() % 4 != 0) packed[2] = packed[3] = '\0';
    std::size_t size = 0;
    for (std::size_t byte = 0; byte < 4 && packed.size() >= 4; ++byte) {
      size |= std::size_t{static_cast<unsigned char>(packed[byte])} << (8 * byte);
    }
    EXPECT_LE(help_viewer::Unpack(packed).size(), size);
  });
}

}  // namespace
}  // namespace qdix::tests
