#include "colour/NameList.h"

#include "colour/Hex.h"
#include "colour/SrgbBytes.h"
#include "colour/WashColor.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace tintra {

namespace {

/// A list in use holds some 21 bytes a line; shorter lines only make the arrays grow.
constexpr std::size_t kLikelyLine = 16;

/// A line taken apart.
struct Entry {
    Rgb255 bytes;
    std::string_view name;
};

/// "#rrggbb" and a tab, as nearly all lines begin: this only saves time.
std::optional<Entry> plainEntry(std::string_view line) {
    if (line.size() < 8 || line[0] != '#' || line[7] != '\t') return std::nullopt;
    const auto byte = [line](std::size_t at) {
        return hexDigit(line[at]) * 16 | hexDigit(line[at + 1]);
    };
    const Rgb255 bytes{byte(1), byte(3), byte(5)};
    if ((bytes.r | bytes.g | bytes.b) < 0) return std::nullopt;
    return Entry{bytes, line.substr(8)};
}

std::optional<Entry> entryOf(std::string_view line) {
    if (const auto plain = plainEntry(line)) return plain;
    const auto tab = line.find('\t');
    if (tab == std::string_view::npos) return std::nullopt;
    const auto colour = WashColor::fromHex(line.substr(0, tab));
    if (!colour) return std::nullopt;
    return Entry{colour->srgb255(), line.substr(tab + 1)};
}

} // namespace

NameList::NameList(Bytes file) : file_(std::move(file)) {
    auto text = asText(file_);
    if (!isValidUtf8(text)) return;
    const auto likely = text.size() / kLikelyLine;
    names_.reserve(likely);
    for (auto* column : {&L_, &a_, &b_})
        column->reserve(likely);
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        add(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void NameList::add(std::string_view line) {
    const auto entry = entryOf(line);
    if (!entry) return;
    const auto& [bytes, name] = *entry;
    const auto& tables = SrgbBytes::shared();
    const auto linear = [&tables](int byte) {
        return tables.linear(static_cast<std::uint8_t>(byte));
    };
    const auto lab = oklabFromLinear({linear(bytes.r), linear(bytes.g), linear(bytes.b)});
    L_.push_back(lab.L);
    a_.push_back(lab.a);
    b_.push_back(lab.b);
    names_.push_back(name);
}

std::string_view NameList::nearest(const Oklab& colour) const {
    return names_[nameScans().front().scan({L_, a_, b_}, colour)];
}

} // namespace tintra
