#include "controls/x_graph_meter.h"

#include "base/numbers.h"

namespace qdix::controls {

namespace {

constexpr const char* kMaxName = "Max";
constexpr const char* kBarWidthName = "BarWidth";
constexpr const char* kBackColourName = "BackColor";
constexpr const char* kForeColourName = "ForeColor";
constexpr const char* kFlatName = "Flat";
constexpr const char* kInvertedName = "Inverted";
constexpr XGraphMeterProperties kDefaults;

// True as a form designer writes it. Any number other than 0 is read as true.
constexpr std::int32_t kTrue = -1;

constexpr ui::BorderStyle StyleOf(bool flat) {
  return flat ? ui::BorderStyle::kFlatLine : ui::BorderStyle::kThreeD;
}

// The bag holds signed numbers, so system colours are negative.
constexpr std::int32_t ToBag(ui::Colour colour) { return static_cast<std::int32_t>(colour); }
constexpr std::int32_t ToBag(bool flag) { return flag ? kTrue : 0; }

base::Result<std::int32_t> OneMore(std::int32_t size) { return base::SubtractInt32(size, -1); }

}  // namespace

XGraphMeter::XGraphMeter(ui::Container& parent, const ui::Design& design,
                         const XGraphMeterProperties& properties)
    : DrawingControl(parent, design, StyleOf(properties.flat)),
      max_(properties.max),
      bar_width_px_(properties.bar_width),
      fore_colour_(properties.fore_colour),
      inverted_(properties.inverted) {
  SetBackColour(properties.back_colour);
}

void XGraphMeter::SetMax(std::int32_t max) {
  max_ = max;
  Clear();
}

void XGraphMeter::SetBarWidth(std::int32_t bar_width_px) {
  bar_width_px_ = bar_width_px;
  Clear();
}

void XGraphMeter::SetFlat(bool flat) {
  SetBorderStyle(StyleOf(flat));
  Clear();
}

void XGraphMeter::SetInverted(bool inverted) {
  inverted_ = inverted;
  Clear();
}

void XGraphMeter::DrawAll() {
  Surface()->FillBox(0, 0, Width() - 1, Height() - 1, BackColour());
  PixelsChanged();
}

void XGraphMeter::Clear() {
  if (Surface() != nullptr) DrawAll();
}

base::Status XGraphMeter::Update(std::int32_t value) {
  const base::Status drawn = Draw(value);
  // Needed after an error, too: the picture may already have moved.
  PixelsChanged();
  return drawn;
}

base::Status XGraphMeter::Draw(std::int32_t value) {
  const base::Result<std::int32_t> to_x = base::SubtractInt32(0, bar_width_px_);
  const base::Result<std::int32_t> copy_width = OneMore(Width());
  const base::Result<std::int32_t> copy_height = OneMore(Height());
  if (!to_x.Ok() || !copy_width.Ok() || !copy_height.Ok()) return base::kOverflow;
  if (Surface() != nullptr) {
    Surface()->CopyOntoSelf(to_x.Value(), 0, copy_width.Value(), copy_height.Value(), 0, 0);
  }
  const base::Result<std::int32_t> left = base::SubtractInt32(Width(), bar_width_px_);
  if (!left.Ok()) return left.Error();
  FillStrip(left.Value(), 0, Height(), BackColour());
  return value > 0 ? DrawBar(left.Value(), value) : base::kDone;
}

base::Status XGraphMeter::DrawBar(std::int32_t left, std::int32_t value) {
  const base::Result<double> share = base::Divide(value, max_);
  if (!share.Ok()) return share.Error();
  const base::Result<std::int32_t> bar_height = base::ToInt32(share.Value() * Height() - 1);
  if (!bar_height.Ok()) return bar_height.Error();
  if (inverted_) {
    FillStrip(left, 0, bar_height.Value(), fore_colour_);
    return base::kDone;
  }
  const base::Result<std::int32_t> top = base::SubtractInt32(Height(), bar_height.Value());
  if (!top.Ok()) return top.Error();
  FillStrip(left, top.Value(), Height(), fore_colour_);
  return base::kDone;
}

void XGraphMeter::FillStrip(std::int32_t left, std::int32_t top, std::int32_t bottom, ui::Colour colour) {
  if (Surface() != nullptr) Surface()->FillBox(left, top, Width(), bottom, colour);
}

void XGraphMeter::ReadProperties(const ui::PropertyBag& bag) {
  SetMax(bag.ReadProperty(kMaxName, kDefaults.max));
  SetBarWidth(bag.ReadProperty(kBarWidthName, kDefaults.bar_width));
  SetBackColour(static_cast<ui::Colour>(bag.ReadProperty(kBackColourName, ToBag(kDefaults.back_colour))));
  SetForeColour(static_cast<ui::Colour>(bag.ReadProperty(kForeColourName, ToBag(kDefaults.fore_colour))));
  SetFlat(bag.ReadProperty(kFlatName, ToBag(kDefaults.flat)) != 0);
  SetInverted(bag.ReadProperty(kInvertedName, ToBag(kDefaults.inverted)) != 0);
}

void XGraphMeter::WriteProperties(ui::PropertyBag& bag) const {
  bag.WriteProperty(kMaxName, max_, kDefaults.max);
  bag.WriteProperty(kBarWidthName, bar_width_px_, kDefaults.bar_width);
  bag.WriteProperty(kBackColourName, ToBag(BackColour()), ToBag(kDefaults.back_colour));
  bag.WriteProperty(kForeColourName, ToBag(fore_colour_), ToBag(kDefaults.fore_colour));
  bag.WriteProperty(kFlatName, ToBag(Flat()), ToBag(kDefaults.flat));
  bag.WriteProperty(kInvertedName, ToBag(inverted_), ToBag(kDefaults.inverted));
}

}  // namespace qdix::controls
