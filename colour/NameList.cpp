#include "colour/NameList.h"

#include "colour/Hex.h"
#include "colour/SrgbBytes.h"
#include "colour/WashColor.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>

namespace tintra {

namespace {

/// A list in use holds some 21 bytes a line; shorter lines only make the arrays grow.
constexpr std::size_t kLikelyLine = 16;

/// A line taken apart.
struct Entry {
    Rgb255 bytes;
    std::size_t name; ///< where it begins
};

/// "#rrggbb" and a tab, as nearly all lines begin: this only saves time.
std::optional<Entry> plainEntry(std::string_view line) {
    if (line.size() < 8 || line[0] != '#' || line[7] != '\t') return std::nullopt;
    const auto byte = [line](std::size_t at) {
        return hexDigit(line[at]) * 16 | hexDigit(line[at + 1]);
    };
    const Rgb255 bytes{byte(1), byte(3), byte(5)};
    if ((bytes.r | bytes.g | bytes.b) < 0) return std::nullopt;
    return Entry{bytes, 8};
}

std::optional<Entry> entryOf(std::string_view line) {
    if (const auto plain = plainEntry(line)) return plain;
    const auto tab = line.find('\t');
    if (tab == std::string_view::npos) return std::nullopt;
    const auto colour = WashColor::fromHex(line.substr(0, tab));
    if (!colour) return std::nullopt;
    return Entry{colour->srgb255(), tab + 1};
}

std::size_t lineEnd(std::string_view text, std::size_t from) {
    return std::min(text.find('\n', from), text.size());
}

} // namespace

NameList::NameList(Bytes file) : file_(std::move(file)) {
    const auto text = asText(file_);
    if (text.size() > std::numeric_limits<std::uint32_t>::max() || !isValidUtf8(text)) return;
    const auto likely = text.size() / kLikelyLine;
    names_.reserve(likely);
    for (auto* column : {&L_, &a_, &b_})
        column->reserve(likely);
    for (std::size_t begin = 0; begin < text.size();) {
        const auto end = lineEnd(text, begin);
        addLine(begin, end);
        begin = end + 1;
    }
}

void NameList::addLine(std::size_t begin, std::size_t end) {
    const auto entry = entryOf(asText(file_).substr(begin, end - begin));
    if (!entry) return;
    const auto& bytes = entry->bytes;
    const auto& tables = SrgbBytes::shared();
    const auto linear = [&tables](int byte) {
        return tables.linear(static_cast<std::uint8_t>(byte));
    };
    const auto lab = oklabFromLinear({linear(bytes.r), linear(bytes.g), linear(bytes.b)});
    L_.push_back(lab.L);
    a_.push_back(lab.a);
    b_.push_back(lab.b);
    names_.push_back(static_cast<std::uint32_t>(begin + entry->name));
}

std::string_view NameList::nearest(const Oklab& colour) const {
    const auto begin = names_[nameScans().front().scan({L_, a_, b_}, colour)];
    const auto text = asText(file_);
    return text.substr(begin, lineEnd(text, begin) - begin);
}

} // namespace tintra
