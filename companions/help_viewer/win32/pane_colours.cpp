#include "help_viewer/win32/pane_colours.h"

namespace qdix::help_viewer::win32 {

namespace {

/// The system's colour of links; Windows 98 and later have one.
constexpr int kHotLight = 26;
/// The green of the links in the help of Windows 95.
constexpr COLORREF kHelpGreen = RGB(0, 128, 0);

/// Shares of the three colours in brightness, in percent.
int Brightness(COLORREF colour) {
  return (GetRValue(colour) * 30 + GetGValue(colour) * 59 + GetBValue(colour) * 11) / 100;
}

/// On a dark background, as in a scheme of high contrast, the green could not be read.
COLORREF LinkColour(COLORREF background) {
  constexpr int kDark = 128;
  if (GetSysColorBrush(kHotLight) != nullptr) return GetSysColor(kHotLight);
  return Brightness(background) < kDark ? GetSysColor(COLOR_WINDOWTEXT) : kHelpGreen;
}

}  // namespace

Palette SystemPalette(ui::Colour background) {
  const COLORREF ground = ui::win32::ResolveColour(background);
  return {.background = ground,
          .text = GetSysColor(COLOR_WINDOWTEXT),
          .link = LinkColour(ground),
          .marked_background = GetSysColor(COLOR_HIGHLIGHT),
          .marked_text = GetSysColor(COLOR_HIGHLIGHTTEXT)};
}

}  // namespace qdix::help_viewer::win32
