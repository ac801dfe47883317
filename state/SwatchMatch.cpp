#include "state/SwatchMatch.h"

#include <array>
#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tintra {

namespace {

/// What makes two swatches the same in one round; none for a swatch that the round passes over.
using Key = std::optional<std::string>;
using KeyOf = Key (*)(const WashColor&, const std::optional<std::string>& name, std::size_t place);

constexpr std::array<KeyOf, 4> kRounds{
    [](const WashColor& color, const std::optional<std::string>& name, std::size_t) -> Key {
        return color.identity() + "/" + name.value_or("");
    },
    [](const WashColor& color, const std::optional<std::string>&, std::size_t) -> Key {
        return color.identity();
    },
    [](const WashColor&, const std::optional<std::string>& name, std::size_t) -> Key {
        return name;
    },
    [](const WashColor&, const std::optional<std::string>&, std::size_t place) -> Key {
        return std::to_string(place);
    },
};

} // namespace

std::vector<std::optional<Uuid>> matchedSwatches(std::span<const PaletteSwatch> before,
                                                 std::span<const PaletteFile::Swatch> now) {
    std::vector<std::optional<Uuid>> matches(now.size());
    std::vector<bool> taken(before.size());
    for (const auto keyOf : kRounds) {
        std::unordered_map<std::string, std::deque<std::size_t>> free;
        for (std::size_t i = 0; i < before.size(); ++i)
            if (!taken[i])
                if (auto key = keyOf(before[i].color, before[i].name, i))
                    free[*std::move(key)].push_back(i);
        for (std::size_t i = 0; i < now.size(); ++i) {
            if (matches[i]) continue;
            const auto key = keyOf(now[i].color, now[i].name, i);
            const auto found = key ? free.find(*key) : free.end();
            if (found == free.end() || found->second.empty()) continue;
            matches[i] = before[found->second.front()].id;
            taken[found->second.front()] = true;
            found->second.pop_front();
        }
    }
    return matches;
}

} // namespace tintra
