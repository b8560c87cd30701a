// The help viewer on a simulated machine, with a small book of its own, a pane of 300 by 200 pixels and
// letters of equal width.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "help_viewer/help_form.h"
#include "os/simulated/simulated_clipboard.h"
#include "os/simulated/simulated_machine.h"
#include "os/simulated/simulated_printer.h"
#include "os/simulated/simulated_screen.h"
#include "os/simulated/simulated_text_device.h"

namespace qdix::tests {

/// Five topics in two sections. Topic 7 is long, topic 5 has a table; 0 links to 5 and 7.
inline const std::string kBook = [] {
  std::string book =
      "SFirst Steps\n"
      "@0\tWelcome\n"
      "PShort and \x01"
      "bold\x01 words, press \x02"
      "Enter\x02.\n"
      "N1\tSee \x03"
      "5\x1F"
      "the files\x04.\n"
      "N2\tThen \x03"
      "7\x1Fthe rest\x04 and \x03"
      "99\x1Fnothing\x04.\n"
      "IPICTURE.BMP\tA picture\n"
      "@4\tMemory\n"
      "PPress the button.\n"
      "SThe Rest\n"
      "@5\tFiles\n"
      "HSizes\n"
      "TFile\tSize\n"
      "RQDIX.exe\t100 KB\n"
      "Rundo.exe\t40 KB\n"
      "@7\tA Long One\n";
  for (int i = 0; i < 30; ++i) book += "PParagraph " + std::to_string(i) + " has Caf\xE9 in it.\n";
  return book +
         "BBack to \x03"
         "0\x1Fthe start\x04\n"
         "@11\tAbout\n"
         "C[section]\n"
         "Ckey=value\n";
}();

/// Packs a stream without any repetitions.
inline std::string PackPlainly(std::string_view stream) {
  std::string packed;
  for (unsigned byte = 0; byte < 4; ++byte) packed += static_cast<char>(stream.size() >> (8 * byte));
  for (std::size_t begin = 0; begin < stream.size(); begin += 8) {
    packed += '\xFF';
    packed += stream.substr(begin, 8);
  }
  return packed;
}

class HelpRig {
 public:
  explicit HelpRig(const std::string& stream = kBook) : packed_(PackPlainly(stream)) {
    machine.SetModuleFileName("C:\\Program Files\\QDIX\\help.exe");
  }

  /// Starts the program with these arguments, as the main program does.
  help_viewer::HelpForm& Start(const std::string& arguments = "") {
    Make(arguments);
    form->Start();
    return *form;
  }
  /// Does the same as Start(), but stops before anything is shown.
  help_viewer::HelpForm& Make(const std::string& arguments = "") {
    command_line_ = "C:\\Program Files\\QDIX\\help.exe" + (arguments.empty() ? "" : " " + arguments);
    form.emplace(machine.GetSystem(), help_viewer::Devices{clipboard, printer, screen},
                 help_viewer::StartWith{.packed_stream = packed_, .command_line = command_line_});
    Screen().paneTopic.SurfaceChanged(&device, 300, 200);
    return *form;
  }

  [[nodiscard]] help_viewer::HelpScreen& Screen() { return form->Screen(); }
  [[nodiscard]] help_viewer::TopicPane& Pane() { return Screen().paneTopic; }
  /// Returns the title of the topic in the pane.
  [[nodiscard]] std::string Title() { return Pane().Shown().blocks.front().cells.front().characters; }
  [[nodiscard]] static std::vector<std::string> RowsOf(const ui::ListBox& list) {
    std::vector<std::string> rows;
    for (int row = 0; row < list.Count(); ++row) rows.push_back(list.Item(row));
    return rows;
  }
  /// Replaces the text in the search field.
  void TypeWord(const std::string& word) {
    Screen().txtWord.SelectAll();
    if (word.empty()) Screen().txtWord.Type('\b');
    Screen().txtWord.TypeText(word);
  }

  os::SimulatedMachine machine;
  os::simulated::SimulatedClipboard clipboard;
  os::simulated::SimulatedPrinter printer;
  os::simulated::SimulatedScreen screen;
  os::simulated::SimulatedTextDevice device;
  std::optional<help_viewer::HelpForm> form;

 private:
  std::string packed_;
  std::string command_line_;
};

}  // namespace qdix::tests
