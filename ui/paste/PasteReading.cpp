#include "ui/paste/PasteReading.h"

#include "palettes/Lines.h"
#include "palettes/PasteColours.h"
#include "palettes/Stylesheet.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <string>
#include <unordered_set>

namespace tintra {
namespace {

PasteReading readLines(std::string_view text) {
    PasteReading reading;
    for (std::size_t number = 0; !text.empty(); ++number) {
        const auto line = trimmed(takeLine(text));
        if (line.empty()) continue;
        const auto colour = PasteColours::colour(line);
        if (colour) reading.swatches.push_back({*colour, {}});
        if (reading.lines.size() < PasteReading::kMostLines)
            reading.lines.push_back({.number = number, .color = colour});
    }
    return reading;
}

/// The lines of a stylesheet, declaration by declaration.
class StylesheetLines {
public:
    explicit StylesheetLines(std::string_view text) : text_(text) {}

    void add(const Stylesheet::Declared& declared) {
        number_ += static_cast<std::size_t>(
            std::count(text_.begin() + at_, text_.begin() + placeOf(declared), '\n'));
        at_ = placeOf(declared);
        std::size_t fresh = 0;
        for (const auto& colour : declared.colours) {
            if (!seen_.insert(colour.identity()).second) continue;
            ++fresh;
            reading_.swatches.push_back({colour, declared.name});
        }
        note(declared, fresh);
    }

    PasteReading take() { return std::move(reading_); }

private:
    static std::ptrdiff_t placeOf(const Stylesheet::Declared& declared) {
        return static_cast<std::ptrdiff_t>(declared.at);
    }

    void note(const Stylesheet::Declared& declared, std::size_t fresh) {
        auto& lines = reading_.lines;
        const bool isNew = lines.empty() || lines.back().number != number_;
        if (isNew && lines.size() >= PasteReading::kMostLines) return;
        if (isNew) lines.push_back({.number = number_});
        auto& line = lines.back();
        if (declared.colours.empty()) return;
        const auto before = line.color && !line.isRepeat ? line.more + 1 : 0;
        if (!line.color || (line.isRepeat && fresh > 0)) {
            const auto& swatches = reading_.swatches;
            line.color =
                fresh > 0 ? swatches[swatches.size() - fresh].color : declared.colours.front();
            line.name = declared.name;
        }
        const auto whole = before + fresh;
        line.isRepeat = whole == 0;
        line.more = whole == 0 ? 0 : whole - 1;
    }

    std::string_view text_;
    std::ptrdiff_t at_ = 0;
    std::size_t number_ = 0;
    std::unordered_set<std::string> seen_;
    PasteReading reading_;
};

} // namespace

const PasteReading::Line* PasteReading::line(std::size_t number) const {
    const auto found = std::ranges::lower_bound(lines, number, {}, &Line::number);
    return found != lines.end() && found->number == number ? &*found : nullptr;
}

PasteReading readPasted(std::string_view text) {
    if (!Stylesheet::looksLikeStylesheet(text)) return readLines(text);
    StylesheetLines lines(text);
    for (const auto& declared : Stylesheet::declared(text))
        lines.add(declared);
    return lines.take();
}

} // namespace tintra
