#include "state/Bench.h"

#include <algorithm>

namespace tintra {

using Of = BenchSelection::Of;

std::vector<BenchSelection> Bench::activeOrder() const {
    std::vector<BenchSelection> order;
    std::vector<bool> placed(benchWells().size());
    for (const auto& column : benchColumns()) {
        order.push_back({Of::column, column.id});
        for (std::size_t i = 0; i < placed.size(); ++i) {
            const auto& well = benchWells()[i];
            if (placed[i] || !well.hasParent(column.id)) continue;
            order.push_back({Of::well, well.id});
            placed[i] = true;
        }
    }
    return order;
}

void Bench::walkActive(int by) {
    const auto order = activeOrder();
    if (order.empty() || by == 0) return;
    const auto last = static_cast<std::ptrdiff_t>(order.size()) - 1;
    std::ptrdiff_t to = by > 0 ? 0 : last;
    if (const auto active = benchActive.value()) {
        const auto found = std::ranges::find(order, *active);
        if (found != order.end())
            to = std::clamp<std::ptrdiff_t>(found - order.begin() + by, 0, last);
    }
    benchActive = order[static_cast<std::size_t>(to)];
}

void Bench::pruneBenchActiveIfInvalid() {
    const auto active = benchActive.value();
    if (!active) return;
    const bool isThere =
        active->kind == Of::column ? column(active->id) != nullptr : well(active->id) != nullptr;
    if (!isThere) benchActive = std::nullopt;
}

} // namespace tintra
