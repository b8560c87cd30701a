// The program: owns the book, the window and everything that works on it.
#pragma once

#include <string>
#include <string_view>

#include "help_viewer/book.h"
#include "help_viewer/contents_list.h"
#include "help_viewer/find_page.h"
#include "help_viewer/help_screen.h"
#include "help_viewer/help_system.h"
#include "help_viewer/reader.h"
#include "help_viewer/saved_window_place.h"
#include "host/boxes.h"
#include "os/clipboard.h"
#include "os/printer.h"
#include "os/screen.h"
#include "ui/application.h"

namespace qdix::help_viewer {

/// The devices that only this program uses.
struct Devices {
  os::Clipboard& clipboard;
  os::Printer& printer;
  os::Screen& screen;
};

/// What the program is started with.
struct StartWith {
  /// The packed topics.
  std::string_view packed_stream;
  std::string_view command_line;
};

class HelpForm {
 public:
  /// The devices must outlive this object. Asks every open viewer to close, so only one stays open.
  HelpForm(const HelpSystem& system, const Devices& devices, const StartWith& start);
  HelpForm(const HelpForm&) = delete;
  HelpForm& operator=(const HelpForm&) = delete;
  ~HelpForm() = default;

  /// Shows the window with the topic of the command line, or with the contents.
  void Start();

  /// The Windows session ends. Unloads the window.
  void EndSession();

  [[nodiscard]] ui::Application& TheApplication() { return application_; }
  [[nodiscard]] ui::Form& Form() { return screen_.Window; }
  [[nodiscard]] HelpScreen& Screen() { return screen_; }
  /// Returns the index of the current topic, or kContentsPage.
  [[nodiscard]] int Current() const { return reader_.Current(); }

  base::Status cmdContents_Click();
  base::Status cmdFind_Click();
  /// "Print...". Moves the focus to the topic, so the keys scroll it; so do "Copy Topic" and "Back".
  base::Status cmdPrint_Click();
  /// "Copy Topic", and Ctrl+C.
  base::Status cmdCopy_Click();

 private:
  enum class Side : bool {
    kContents,
    kFind
  };

  void Bind();
  void CloseOtherViewers() const;
  void ShowSide(Side side);
  base::Status Arrange();
  base::Status Close();
  base::Status Unload();
  void ReportUntrapped(const base::RuntimeError& error);

  const HelpSystem system_;
  const Devices devices_;
  const std::string stream_;
  const Book book_;
  int first_topic_;
  ui::EventDispatcher events_;
  ui::Application application_{kTitle};
  host::Boxes boxes_;
  HelpScreen screen_{events_};
  Reader reader_;
  ContentsList contents_list_;
  FindPage find_page_;
  SavedWindowPlace saved_place_;
};

}  // namespace qdix::help_viewer
