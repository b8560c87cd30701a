#include "help_viewer/saved_window_place.h"

#include <algorithm>
#include <array>

#include "base/numbers.h"

namespace qdix::help_viewer {

namespace {

constexpr const char* kSection = "Help";
constexpr registry::SwitchSetting kMaximised{{kSection, "Maximised"}, false};

struct Side {
  registry::MachineSetting setting;
  int ui::WindowBounds::*member;
};
constexpr std::array<Side, 4> kSides{{{{{kSection, "Left"}}, &ui::WindowBounds::left},
                                      {{{kSection, "Top"}}, &ui::WindowBounds::top},
                                      {{{kSection, "Width"}}, &ui::WindowBounds::width},
                                      {{{kSection, "Height"}}, &ui::WindowBounds::height}}};

/// In pixels. The minimum size of the window itself is larger.
constexpr int kMinSidePx = 1;
constexpr int kMaxCoordinatePx = 32767;

/// Moves and shortens one dimension to fit the screen.
void FitInto(int& begin, int& length, int screen_length) {
  length = std::clamp(length, kMinSidePx, screen_length);
  begin = std::clamp(begin, 0, screen_length - length);
}

}  // namespace

void SavedWindowPlace::Restore(ui::Form& window) const {
  if (settings_.Get(kMaximised)) window.SetState(ui::WindowState::kMaximised);
  ui::WindowBounds bounds;
  for (const Side& side : kSides) {
    const std::string text = settings_.Stored(side.setting).value_or("");
    if (!base::IsNumber(text)) return;
    bounds.*side.member =
        base::ClampToInt32(base::ParseLeadingNumber(text), -kMaxCoordinatePx, kMaxCoordinatePx);
  }
  const os::ScreenSize area = screen_.WorkArea();
  FitInto(bounds.left, bounds.width, area.width);
  FitInto(bounds.top, bounds.height, area.height);
  window.SetBounds(bounds);
}

void SavedWindowPlace::Save(const ui::Form& window) {
  if (!window.Bounds().has_value()) return;
  const ui::WindowBounds& bounds = *window.Bounds();
  for (const Side& side : kSides) settings_.Save(side.setting, bounds.*side.member);
  const bool is_maximised = window.State() == ui::WindowState::kMaximised;
  settings_.Save(kMaximised, is_maximised ? "True" : "False");
}

}  // namespace qdix::help_viewer
