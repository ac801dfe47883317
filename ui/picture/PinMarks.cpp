#include "ui/picture/PinMarks.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace tintra {

std::vector<PinMark> pinMarks(const AppState& state) {
    const auto& pins = state.imageSource.value().found;
    std::map<std::string, std::size_t> places;
    for (std::size_t i = 0; i < state.swatches().size(); ++i)
        places.emplace(state.swatches()[i].id.text(), i);
    std::vector<PinMark> marks;
    for (const auto& pin : pins) {
        const auto place = pin.swatchID ? places.find(*pin.swatchID) : places.end();
        marks.push_back({.isOwn = pin.isOwn});
        if (place != places.end()) marks.back().swatch = place->second;
    }
    std::vector<std::size_t> order(marks.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&](std::size_t pin) {
        return marks[pin].swatch.value_or(state.swatches().size());
    });
    for (std::size_t i = 0; i < order.size(); ++i)
        marks[order[i]].number = i + 1;
    return marks;
}

} // namespace tintra
