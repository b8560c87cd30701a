#include "controls/x_graph_meter.h"

#include "base/numbers.h"

namespace qdix::controls {

namespace {

ui::BorderStyle StyleOf(bool flat) { return flat ? ui::BorderStyle::kFlatLine : ui::BorderStyle::kThreeD; }

constexpr const char* kMaxName = "Max";
constexpr const char* kBarWidthName = "BarWidth";
constexpr const char* kBackColourName = "BackColor";
constexpr const char* kForeColourName = "ForeColor";
constexpr const char* kFlatName = "Flat";
constexpr const char* kInvertedName = "Inverted";
constexpr XGraphMeterProperties kDefaults;

}  // namespace

XGraphMeter::XGraphMeter(ui::Container& parent, const ui::Design& design,
                         const XGraphMeterProperties& properties)
    : DrawingControl(parent, design, StyleOf(properties.flat)), properties_(properties) {}

void XGraphMeter::SetMax(std::int32_t max) {
  properties_.max = max;
  Resize();
}

void XGraphMeter::SetBarWidth(std::int32_t bar_width) {
  properties_.bar_width = bar_width;
  Resize();
}

void XGraphMeter::SetFlat(bool flat) {
  properties_.flat = flat;
  SetBorderStyle(StyleOf(flat));
  Resize();
}

void XGraphMeter::SetInverted(bool inverted) {
  properties_.inverted = inverted;
  Resize();
}

void XGraphMeter::Resize() {
  ui::Canvas* const canvas = Surface();
  if (canvas == nullptr) return;
  width_ = canvas->Width();
  height_ = canvas->Height();
  canvas->FillBox(0, 0, width_ - 1, height_ - 1, properties_.back_colour);
  PixelsChanged();
}

base::Status XGraphMeter::Update(std::int32_t value) {
  const base::Result<std::int32_t> left = base::SubtractInt32(width_, properties_.bar_width);
  const base::Result<std::int32_t> scrolled_to = base::SubtractInt32(0, properties_.bar_width);
  if (!left.Ok() || !scrolled_to.Ok()) return base::kOverflow;
  ui::Canvas* const canvas = Surface();
  if (canvas == nullptr) return base::kDone;
  canvas->CopyOntoSelf(scrolled_to.Value(), 0, width_ + 1, height_ + 1, 0, 0);
  canvas->FillBox(left.Value(), 0, width_, height_, properties_.back_colour);
  const base::Status drawn = value > 0 ? DrawBar(*canvas, left.Value(), value) : base::kDone;
  PixelsChanged();
  return drawn;
}

base::Status XGraphMeter::DrawBar(ui::Canvas& canvas, std::int32_t left, std::int32_t value) {
  const base::Result<double> share = base::Divide(value, properties_.max);
  if (!share.Ok()) return share.Error();
  const base::Result<std::int32_t> bar_height = base::ToInt32(share.Value() * height_ - 1);
  if (!bar_height.Ok()) return bar_height.Error();
  if (properties_.inverted) {
    canvas.FillBox(left, 0, width_, bar_height.Value(), properties_.fore_colour);
    return base::kDone;
  }
  const base::Result<std::int32_t> top = base::SubtractInt32(height_, bar_height.Value());
  if (!top.Ok()) return top.Error();
  canvas.FillBox(left, top.Value(), width_, height_, properties_.fore_colour);
  return base::kDone;
}

void XGraphMeter::ReadProperties(const ui::PropertyBag& bag) {
  SetMax(bag.ReadProperty(kMaxName, kDefaults.max));
  SetBarWidth(bag.ReadProperty(kBarWidthName, kDefaults.bar_width));
  SetGraphBackColour(static_cast<ui::Colour>(
      bag.ReadProperty(kBackColourName, static_cast<std::int32_t>(kDefaults.back_colour))));
  SetForeColour(static_cast<ui::Colour>(
      bag.ReadProperty(kForeColourName, static_cast<std::int32_t>(kDefaults.fore_colour))));
  SetFlat(bag.ReadProperty(kFlatName, 0) != 0);
  SetInverted(bag.ReadProperty(kInvertedName, 0) != 0);
}

void XGraphMeter::WriteProperties(ui::PropertyBag& bag) const {
  bag.WriteProperty(kMaxName, properties_.max, kDefaults.max);
  bag.WriteProperty(kBarWidthName, properties_.bar_width, kDefaults.bar_width);
  bag.WriteProperty(kBackColourName, static_cast<std::int32_t>(properties_.back_colour),
                    static_cast<std::int32_t>(kDefaults.back_colour));
  bag.WriteProperty(kForeColourName, static_cast<std::int32_t>(properties_.fore_colour),
                    static_cast<std::int32_t>(kDefaults.fore_colour));
  bag.WriteProperty(kFlatName, properties_.flat ? 1 : 0, 0);
  bag.WriteProperty(kInvertedName, properties_.inverted ? 1 : 0, 0);
}

}  // namespace qdix::controls
