#include "help_viewer/paper.h"

#include <algorithm>

#include "help_viewer/pane_picture.h"

namespace qdix::help_viewer {

namespace {

bool PrintPage(os::Printer& printer, const Layout& layout, const Page& page, int margin_px) {
  if (!printer.StartPage()) return false;
  DrawLayout(printer.Device(), layout,
             {.first_px = page.first_px, .end_px = page.end_px, .left_px = margin_px, .top_px = margin_px},
             {}, nullptr);
  return printer.EndPage();
}

bool PrintPages(os::Printer& printer, const Layout& layout, int page_height_px, int margin_px) {
  for (const Page& page : Paginate(layout, page_height_px)) {
    if (!PrintPage(printer, layout, page, margin_px)) return false;
  }
  return printer.EndDoc();
}

}  // namespace

std::vector<Page> Paginate(const Layout& layout, int page_height_px) {
  std::vector<Page> pages(1);
  for (const Line& line : layout.lines) {
    const int end = line.top + line.height;
    const bool fits = end - pages.back().first_px <= page_height_px;
    const bool is_first = pages.back().end_px == pages.back().first_px;
    if (!fits && !is_first) pages.push_back({.first_px = line.top});
    pages.back().end_px = end;
  }
  return pages;
}

bool PrintTopic(os::Printer& printer, const Topic& topic, const std::string& document) {
  const os::PrinterPage paper = printer.GetDeviceCaps();
  // Half an inch, but at most a quarter of the page, to leave room for text.
  const int margin_px = std::min({paper.dots_per_inch / 2, paper.width_px / 4, paper.height_px / 4});
  const Layout layout = LayOut(topic, printer.Device(), paper.width_px - 2 * margin_px, 0);
  if (!printer.StartDocA(document)) return false;
  if (PrintPages(printer, layout, paper.height_px - 2 * margin_px, margin_px)) return true;
  printer.AbortDoc();
  return false;
}

}  // namespace qdix::help_viewer
