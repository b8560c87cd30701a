#include "help_viewer/packed_stream.h"

#include <algorithm>

namespace qdix::help_viewer {

namespace {

constexpr std::size_t kSizeBytes = 4;
constexpr unsigned kItemsPerGroup = 8;
constexpr unsigned kDistanceBits = 13;
constexpr unsigned kDistanceMask = (1U << kDistanceBits) - 1;
constexpr std::size_t kShortest = 3;

class Unpacker {
 public:
  explicit Unpacker(std::string_view packed) : rest_(packed) {}

  std::string Unpack() {
    std::size_t size = 0;
    for (unsigned byte = 0; byte < kSizeBytes; ++byte) size |= std::size_t{TakeByte()} << (8 * byte);
    size_ = std::min(size, kMaxStreamBytes);
    stream_.reserve(size_);
    while (IsUnfinished()) TakeGroup();
    return std::move(stream_);
  }

 private:
  [[nodiscard]] bool IsUnfinished() const { return stream_.size() < size_ && !rest_.empty(); }

  unsigned char TakeByte() {
    if (rest_.empty()) return 0;
    const auto byte = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    return byte;
  }

  void TakeGroup() {
    const unsigned flags = TakeByte();
    for (unsigned item = 0; item < kItemsPerGroup && IsUnfinished(); ++item) {
      if ((flags & (1U << item)) != 0) {
        stream_ += static_cast<char>(TakeByte());
      } else {
        Repeat();
      }
    }
  }

  /// The repetition may include bytes that it writes itself. Damaged data ends the stream.
  void Repeat() {
    const unsigned low = TakeByte();
    const unsigned item = low | (static_cast<unsigned>(TakeByte()) << 8);
    const std::size_t distance = (item & kDistanceMask) + 1;
    const std::size_t length =
        std::min<std::size_t>((item >> kDistanceBits) + kShortest, size_ - stream_.size());
    if (distance > stream_.size()) {
      rest_ = {};
      return;
    }
    for (std::size_t copied = 0; copied < length; ++copied) stream_ += stream_[stream_.size() - distance];
  }

  std::string_view rest_;
  std::string stream_;
  std::size_t size_ = 0;
};

}  // namespace

std::string Unpack(std::string_view packed) { return Unpacker(packed).Unpack(); }

}  // namespace qdix::help_viewer
