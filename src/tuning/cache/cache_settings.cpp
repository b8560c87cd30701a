#include "tuning/cache/cache_settings.h"

#include <limits>
#include <string>

#include "base/numbers.h"
#include "tuning/cache/file_system_template.h"

namespace qdix::tuning {

namespace {

/// Maximum size on offer for each megabyte (1,024,000 bytes) of memory: half of it.
constexpr double kMaxCacheKbPerMb = 500;
constexpr std::int32_t kMinCacheKb = 512;

void SetCacheRange(ui::Slider& slider, double total_ram_mb) {
  using Limits = std::numeric_limits<std::int32_t>;
  slider.SetMaximum(base::ClampToInt32(total_ram_mb * kMaxCacheKbPerMb, Limits::min(), Limits::max()));
  slider.SetValue(kMinCacheKb);
  slider.SetMinimum(kMinCacheKb);
}

}  // namespace

struct CacheSettings::Group {
  ui::CheckBox& box;
  ui::Slider& slider;
  ui::Label& label;
  std::string_view caption;
  std::string_view unit;
};

CacheSettings::CacheSettings(const os::System& system, const SystemIni& system_ini,
                             const memory::MemoryMonitor& monitor, screens::CacheScreen& screen)
    : registry_(system.registry), system_ini_(system_ini), monitor_(monitor), screen_(screen) {
  using ui::Handler;
  using MoveHandler = base::Callback<base::Status(std::int32_t)>;
  screen_.Combo2.OnClick = Handler::To<&CacheSettings::Combo2_Click>(*this);
  screen_.Check5.OnClick = Handler::To<&CacheSettings::Check5_Click>(*this);
  screen_.Check6.OnClick = Handler::To<&CacheSettings::Check6_Click>(*this);
  screen_.Check7.OnClick = Handler::To<&CacheSettings::Check7_Click>(*this);
  screen_.Check8.OnClick = Handler::To<&CacheSettings::Check8_Click>(*this);
  screen_.Slider1.OnMove = MoveHandler::To<&CacheSettings::Slider1_Moved>(*this);
  screen_.Slider2.OnMove = MoveHandler::To<&CacheSettings::Slider2_Moved>(*this);
  screen_.Slider3.OnMove = MoveHandler::To<&CacheSettings::Slider3_Moved>(*this);
  screen_.Slider4.OnMove = MoveHandler::To<&CacheSettings::Slider4_Moved>(*this);
  screen_.Slider5.OnMove = MoveHandler::To<&CacheSettings::Slider5_Moved>(*this);
}

CacheSettings::Group CacheSettings::MinCache() const {
  return {screen_.Check5, screen_.Slider1, screen_.lblMinCache, "Min Cache Size : ", " Kb"};
}
CacheSettings::Group CacheSettings::MaxCache() const {
  return {screen_.Check6, screen_.Slider2, screen_.lblMaxCache, "Max Cache Size : ", " Kb"};
}
CacheSettings::Group CacheSettings::ChunkSize() const {
  return {screen_.Check7, screen_.Slider3, screen_.lblChunkSize, "Chunk Size : ", " Kb"};
}
CacheSettings::Group CacheSettings::NameCache() const {
  return {screen_.Check8, screen_.Slider4, screen_.lblNameCache, "Name Cache : ", ""};
}
CacheSettings::Group CacheSettings::DirectoryCache() const {
  return {screen_.Check8, screen_.Slider5, screen_.lblDirectoryCache, "Directory Cache : ", ""};
}

void CacheSettings::ShowCaption(const Group& group) {
  std::string caption(group.caption);
  if (group.box.Ticked()) caption.append(base::TextOf(group.slider.Value())).append(group.unit);
  group.label.SetCaption(caption);
}

void CacheSettings::RefreshEnabledState(const Group& group) {
  group.label.SetEnabled(group.box.Ticked());
  group.slider.SetEnabled(group.box.Ticked());
  ShowCaption(group);
}

void CacheSettings::FillList() {
  screen_.Combo2.AddItem(kUserDefined);
  for (const CachePreset& preset : CachePresets()) screen_.Combo2.AddItem(preset.name);
}

void CacheSettings::SetupCache() {
  SetCacheRange(screen_.Slider1, monitor_.TotalRAM());
  SetCacheRange(screen_.Slider2, monitor_.TotalRAM());
  LoadCacheSize(MinCache(), kMinFileCacheEntry);
  LoadCacheSize(MaxCache(), kMaxFileCacheEntry);
  if (screen_.Check5.Ticked() && screen_.Check6.Ticked() &&
      screen_.Slider1.Value() > screen_.Slider2.Value()) {
    screen_.Slider1.SetValue(screen_.Slider2.Value());
  }
  RefreshEnabledState(MinCache());
  RefreshEnabledState(MaxCache());
  LoadChunkSize();
  screen_.Combo2.SetText(kUserDefined);
  LoadTemplateEntry(NameCache(), kNameCacheValue);
  LoadTemplateEntry(DirectoryCache(), kPathCacheValue);
}

/// A size outside the range of this machine is shown as not set.
void CacheSettings::LoadCacheSize(const Group& group, const char* key) {
  const double size_kb = system_ini_.ReadIniValue(kVcacheSection, key);
  const bool is_set = size_kb >= group.slider.Minimum() && size_kb <= group.slider.Maximum();
  group.box.SetTicked(is_set);
  if (is_set) group.slider.SetNearest(size_kb);
}

void CacheSettings::LoadChunkSize() {
  const double size_kb = system_ini_.ReadIniValue(kVcacheSection, kWrittenChunkSizeEntry);
  screen_.Check7.SetTicked(size_kb != 0);
  if (size_kb != 0) screen_.Slider3.SetNearest(size_kb);
  RefreshEnabledState(ChunkSize());
}

void CacheSettings::LoadTemplateEntry(const Group& group, const char* value_name) {
  const std::string stored = registry_.ReadRegistryValue(os::kHkeyLocalMachine, kOwnTemplateKey, value_name);
  if (stored.empty()) return;
  group.slider.SetNearest(base::ParseLeadingNumber(stored));
  group.box.SetTicked(true);
  ShowCaption(group);
}

CacheValues CacheSettings::ShownValues() const {
  return {.min_cache_kb = screen_.Slider1.Value(),
          .min_enabled = screen_.Check5.Ticked(),
          .max_cache_kb = screen_.Slider2.Value(),
          .chunk_kb = screen_.Slider3.Value(),
          .name_cache = screen_.Slider4.Value(),
          .directory_cache = screen_.Slider5.Value()};
}

void CacheSettings::CheckCacheStartValues() {
  screen_.Combo2.SetText(RecogniseCachePreset(ShownValues(), monitor_.TotalRAM()));
}

base::Status CacheSettings::Combo2_Click() {
  applying_preset_ = true;
  const CachePreset* const preset = FindCachePreset(screen_.Combo2.Text());
  // Leaving the flag set has no effect: the list already shows what the boxes would set it to.
  if (preset == nullptr) return base::kDone;
  const base::Result<CacheValues> values = preset->For(monitor_.TotalRAM());
  if (!values.Ok()) return values.Error();
  screen_.Slider4.SetValue(values.Value().name_cache);
  screen_.Slider5.SetValue(values.Value().directory_cache);
  screen_.Slider1.SetValue(values.Value().min_cache_kb);
  screen_.Check5.SetTicked(values.Value().min_enabled);
  screen_.Slider2.SetValue(values.Value().max_cache_kb);
  screen_.Slider3.SetValue(values.Value().chunk_kb);
  screen_.Check6.SetTicked(true);
  screen_.Check7.SetTicked(true);
  screen_.Check8.SetTicked(true);
  for (const Group& group : {NameCache(), DirectoryCache(), MinCache(), MaxCache(), ChunkSize()}) {
    ShowCaption(group);
  }
  applying_preset_ = false;
  return base::kDone;
}

void CacheSettings::BoxClicked() {
  if (!applying_preset_) screen_.Combo2.SetText(kUserDefined);
}

base::Status CacheSettings::Check5_Click() {
  BoxClicked();
  RefreshEnabledState(MinCache());
  return base::kDone;
}

base::Status CacheSettings::Check6_Click() {
  BoxClicked();
  RefreshEnabledState(MaxCache());
  return base::kDone;
}

base::Status CacheSettings::Check7_Click() {
  BoxClicked();
  RefreshEnabledState(ChunkSize());
  return base::kDone;
}

base::Status CacheSettings::Check8_Click() {
  BoxClicked();
  RefreshEnabledState(NameCache());
  RefreshEnabledState(DirectoryCache());
  return base::kDone;
}

base::Status CacheSettings::SliderMoved(const Group& group) {
  ShowCaption(group);
  screen_.Combo2.SetText(kUserDefined);
  return base::kDone;
}

base::Status CacheSettings::Slider1_Moved(std::int32_t value) {
  if (screen_.Slider2.Value() < value) {
    screen_.Slider2.SetValue(value);
    ShowCaption(MaxCache());
  }
  return SliderMoved(MinCache());
}

base::Status CacheSettings::Slider2_Moved(std::int32_t value) {
  if (screen_.Slider1.Value() > value) {
    screen_.Slider1.SetValue(value);
    ShowCaption(MinCache());
  }
  return SliderMoved(MaxCache());
}

base::Status CacheSettings::Slider3_Moved(std::int32_t /*value*/) { return SliderMoved(ChunkSize()); }

base::Status CacheSettings::Slider4_Moved(std::int32_t /*value*/) { return SliderMoved(NameCache()); }

base::Status CacheSettings::Slider5_Moved(std::int32_t /*value*/) { return SliderMoved(DirectoryCache()); }

}  // namespace qdix::tuning
