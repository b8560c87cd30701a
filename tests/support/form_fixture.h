// A shown form with a dispatcher, to place controls on, and a peer that records its notifications.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/form.h"
#include "ui/lists.h"
#include "ui/ranges.h"
#include "ui/simple_controls.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"

namespace qdix::tests {

class RecordingPeer final : public ui::ControlPeer {
 public:
  void ControlChanged(ui::Control& /*control*/, ui::Change change) override { changes.push_back(change); }
  std::vector<ui::Change> changes;
};

/// Counts the runs of a handler, and returns an error on demand.
class Handled {
 public:
  [[nodiscard]] ui::Handler Handler() { return ui::Handler::To<&Handled::Run>(*this); }
  base::Status Run() {
    ++count;
    if (action) action();
    return answer;
  }
  int count = 0;
  std::function<void()> action;
  base::Status answer = base::kDone;
};

class FormFixture {
 public:
  FormFixture() {
    events.ReportErrorsTo(ui::EventDispatcher::ErrorReporter::To<&FormFixture::Report>(*this));
    form.Show();
  }
  void Report(const base::RuntimeError& error) { errors.push_back(error.number); }

  ui::EventDispatcher events;
  ui::Form form{events, {.name = "Form"}};
  /// Numbers of the errors that reached the dispatcher.
  std::vector<int> errors;
};

}  // namespace qdix::tests
