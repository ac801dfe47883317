#include "state/StoredBench.h"

#include "colour/Clamp.h"
#include "state/Record.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

namespace tintra {

using ColumnSnapshot = StoredBench::ColumnSnapshot;
using WellSnapshot = StoredBench::WellSnapshot;
using ActiveSnapshot = StoredBench::ActiveSnapshot;

template <>
inline std::optional<BenchColumn::Kind> caseOfRaw(std::string_view raw) {
    return benchColumnKind(raw);
}

template <>
struct Codec<ColumnSnapshot> {
    static constexpr std::tuple kFields{
        Field{"color", &ColumnSnapshot::color},
        Field{"kind", &ColumnSnapshot::kind, Absent::standsIn},
        Field{"paletteName", &ColumnSnapshot::paletteName},
        Field{"name", &ColumnSnapshot::name},
        Field{"windowID", &ColumnSnapshot::windowID},
        Field{"swatchID", &ColumnSnapshot::swatchID},
        Field{"index", &ColumnSnapshot::index},
    };
    static Json encode(const ColumnSnapshot& value) { return encoded(value, kFields); }
    static std::optional<ColumnSnapshot> decode(const Json& json) { return decoded(json, kFields); }
};

template <>
struct Codec<WellSnapshot> {
    static constexpr std::tuple kFields{
        Field{"parentAIndex", &WellSnapshot::parentAIndex},
        Field{"parentBIndex", &WellSnapshot::parentBIndex},
        Field{"ratio", &WellSnapshot::ratio, Absent::standsIn},
        Field{"white", &WellSnapshot::white, Absent::standsIn},
        Field{"black", &WellSnapshot::black, Absent::standsIn},
    };
    static Json encode(const WellSnapshot& value) { return encoded(value, kFields); }
    static std::optional<WellSnapshot> decode(const Json& json) { return decoded(json, kFields); }
};

template <>
struct Codec<ActiveSnapshot> {
    static constexpr std::tuple kFields{
        Field{"isWell", &ActiveSnapshot::isWell},
        Field{"index", &ActiveSnapshot::index},
    };
    static Json encode(const ActiveSnapshot& value) { return encoded(value, kFields); }
    static std::optional<ActiveSnapshot> decode(const Json& json) { return decoded(json, kFields); }
};

namespace {

constexpr std::tuple kFields{
    Field{"wasOpenAtLastQuit", &StoredBench::wasOpenAtLastQuit, Absent::standsIn},
    Field{"columns", &StoredBench::columns},
    Field{"wells", &StoredBench::wells, Absent::standsIn},
    Field{"active", &StoredBench::active},
    Field{"frame", &StoredBench::frame},
};

/// What stands of a list, and where each element of the list stands now.
template <class Snapshot>
struct Sifted {
    std::vector<Snapshot> standing;
    std::vector<std::optional<std::size_t>> places;

    std::optional<std::size_t> place(std::size_t before) const {
        return before < places.size() ? places[before] : std::nullopt;
    }
};

/// `stands` sees each element that is understood and may mend it.
template <class Snapshot, class Stands>
Sifted<Snapshot> sifted(const Json& record, std::string_view key, Stands stands) {
    Sifted<Snapshot> result;
    const auto list = record.find(key);
    if (list == record.end() || !list->is_array()) return result;
    for (const auto& element : *list) {
        auto snapshot = Codec<Snapshot>::decode(element);
        result.places.emplace_back();
        if (!snapshot || !stands(*snapshot)) continue;
        result.places.back() = result.standing.size();
        result.standing.push_back(*std::move(snapshot));
    }
    return result;
}

bool mend(ColumnSnapshot& column) {
    column.color = opaque(column.color);
    for (auto* const text : {&column.name, &column.paletteName})
        if (*text && (*text)->empty()) text->reset();
    return true;
}

/// Gives the parents their new places; false without two different ones.
bool mend(WellSnapshot& well, const Sifted<ColumnSnapshot>& columns) {
    const auto a = columns.place(well.parentAIndex), b = columns.place(well.parentBIndex);
    if (!a || !b || *a == *b) return false;
    well.parentAIndex = *a;
    well.parentBIndex = *b;
    for (auto* const amount : {&well.ratio, &well.white, &well.black})
        *amount = std::clamp(*amount, 0.0, 1.0);
    return true;
}

} // namespace

std::string encodedBench(const StoredBench& bench) {
    return jsonText(encoded(bench, kFields));
}

std::optional<StoredBench> decodedBench(std::string_view text) {
    const auto json = parsedJson(text);
    auto bench = json ? decoded(*json, kFields) : std::nullopt;
    if (!bench) return std::nullopt;
    auto columns = sifted<ColumnSnapshot>(*json, "columns", [](auto& one) { return mend(one); });
    std::set<std::pair<std::size_t, std::size_t>> pairs;
    auto wells = sifted<WellSnapshot>(*json, "wells", [&](WellSnapshot& well) {
        return mend(well, columns) &&
               pairs.insert(std::minmax(well.parentAIndex, well.parentBIndex)).second;
    });
    if (auto& active = bench->active) {
        const auto place =
            active->isWell ? wells.place(active->index) : columns.place(active->index);
        if (place)
            active->index = *place;
        else
            active.reset();
    }
    bench->columns = std::move(columns.standing);
    bench->wells = std::move(wells.standing);
    return bench;
}

} // namespace tintra
