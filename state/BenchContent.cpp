#include "state/BenchContent.h"

#include "colour/CaseTable.h"

#include <algorithm>
#include <array>

namespace tintra {
namespace {

using Kind = BenchColumn::Kind;

struct KindRow {
    Kind value;
    std::string_view raw, badge;
};
constexpr std::array kKinds{
    KindRow{Kind::paletteSwatch, "paletteSwatch", "PALETTE"},
    KindRow{Kind::dormant, "dormant", "STAGED"},
    KindRow{Kind::staged, "staged", "STAGED"},
    KindRow{Kind::derived, "derived", "DERIVED · STAGED"},
};
static_assert(inCaseOrder(kKinds));

template <class Item>
std::optional<std::size_t> indexIn(const std::vector<Item>& items, const Uuid& id) {
    const auto found = std::ranges::find(items, id, &Item::id);
    if (found == items.end()) return std::nullopt;
    return static_cast<std::size_t>(found - items.begin());
}

} // namespace

std::optional<std::size_t> BenchContent::indexOfColumn(const Uuid& id) const {
    return indexIn(columns, id);
}

std::optional<std::size_t> BenchContent::indexOfWell(const Uuid& id) const {
    return indexIn(wells, id);
}

void BenchContent::removeColumn(const Uuid& id) {
    std::erase_if(columns, [&](const BenchColumn& column) { return column.id == id; });
    std::erase_if(wells, [&](const BenchWell& well) { return well.hasParent(id); });
}

void BenchContent::removeWell(const Uuid& id) {
    std::erase_if(wells, [&](const BenchWell& well) { return well.id == id; });
}

std::string_view rawValue(Kind kind) {
    return rowOf(kKinds, kind).raw;
}

std::optional<Kind> benchColumnKind(std::string_view raw) {
    return caseOf(kKinds, raw);
}

std::string_view badge(Kind kind) {
    return rowOf(kKinds, kind).badge;
}

WashColor opaque(WashColor color) {
    color.a = 1;
    return color;
}

} // namespace tintra
