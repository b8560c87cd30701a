#include "app/window_modes.h"

namespace qdix::app {

namespace {

constexpr std::string_view kPauseCaption = "Pause All Activity";
constexpr std::string_view kResumeCaption = "Resume Activity";

// Stored values of the display mode at start.
constexpr double kFullyDisplayed = 1;
constexpr double kMinimised = 2;
constexpr double kHidden = 3;

}  // namespace

WindowModes::WindowModes(registry::SettingsStore& settings, const Screens& screens)
    : settings_(settings), screens_(screens) {
  using ui::Handler;
  screens_.quondix.Command2.OnClick = Handler::To<&WindowModes::Command2_Click>(*this);
  screens_.quondix.Command3.OnClick = Handler::To<&WindowModes::Command3_Click>(*this);
  screens_.quondix.Command4.OnClick = Handler::To<&WindowModes::Command4_Click>(*this);
  screens_.startup.Option1.OnClick = Handler::To<&WindowModes::Option1_Click>(*this);
  screens_.startup.Option2.OnClick = Handler::To<&WindowModes::Option2_Click>(*this);
  screens_.startup.Option3.OnClick = Handler::To<&WindowModes::Option3_Click>(*this);
}

void WindowModes::LoadStartDisplay() {
  const double stored = settings_.Get(setting::kStartDisplay);
  if (stored == kFullyDisplayed) {
    screens_.startup.Option1.SetSelected(true);
  } else if (stored == kMinimised) {
    screens_.startup.Option2.SetSelected(true);
    screens_.window.Form.SetState(ui::WindowState::kMinimised);
  } else if (stored == kHidden) {
    screens_.startup.Option3.SetSelected(true);
    starts_hidden_ = true;
  }
}

base::Status WindowModes::Command2_Click() {
  screens_.window.Form.Hide();
  return base::kDone;
}

base::Status WindowModes::Command4_Click() {
  screens_.window.Form.SetState(ui::WindowState::kMinimised);
  return base::kDone;
}

base::Status WindowModes::Command3_Click() {
  if (screens_.quondix.Command3.Caption() == kPauseCaption) {
    Pause();
  } else {
    Resume();
  }
  return base::kDone;
}

void WindowModes::Pause() {
  screens_.quondix.Command3.SetCaption(kResumeCaption);
  screens_.automatic.Check1.SetEnabled(false);
  screens_.window.Timer1.SetEnabled(false);
  screens_.window.Timer2.SetEnabled(false);
  screens_.window.Timer3.SetEnabled(false);
  screens_.time_intervals.Check3.SetEnabled(false);
  screens_.window.Timer4.SetEnabled(false);
  screens_.time_intervals.lblNextRelease.SetVisible(false);
}

/// Leaves Timer3 off: a start-up release that was paused before it was due does not happen in this run.
void WindowModes::Resume() {
  screens_.quondix.Command3.SetCaption(kPauseCaption);
  screens_.automatic.Check1.SetEnabled(true);
  screens_.window.Timer1.SetEnabled(true);
  if (screens_.automatic.Check1.Ticked()) screens_.window.Timer2.SetEnabled(true);
  screens_.time_intervals.Check3.SetEnabled(true);
  if (!screens_.time_intervals.Check3.Ticked()) return;
  screens_.window.Timer4.SetEnabled(true);
  screens_.time_intervals.lblNextRelease.SetVisible(true);
}

base::Status WindowModes::Option1_Click() {
  SaveStartDisplay(kFullyDisplayed);
  return base::kDone;
}

base::Status WindowModes::Option2_Click() {
  SaveStartDisplay(kMinimised);
  return base::kDone;
}

base::Status WindowModes::Option3_Click() {
  SaveStartDisplay(kHidden);
  return base::kDone;
}

void WindowModes::SaveStartDisplay(double mode) { settings_.Save(setting::kStartDisplay, mode); }

}  // namespace qdix::app
