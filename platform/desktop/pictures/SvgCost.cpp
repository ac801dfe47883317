#include "platform/desktop/pictures/SvgCost.h"

#include <algorithm>

namespace tintra {

namespace {

constexpr int kMostLevels = 256;
constexpr std::uint64_t kMostElements = 1'000'000;
/// Elements times style rules.
constexpr std::uint64_t kMostRuleTrials = 20'000'000;

} // namespace

bool SvgCost::enter(const QString& id, const QString& target) {
    if (open_.size() >= static_cast<std::size_t>(kMostLevels)) return false;
    const auto index = nodes_.size();
    nodes_.push_back({});
    nodes_.back().target = target;
    if (!open_.empty()) {
        auto& parent = nodes_[open_.back()];
        nodes_.back().nextSibling = std::exchange(parent.firstChild, index);
    }
    if (!id.isEmpty()) byId_.insert(id, index);
    open_.push_back(index);
    return true;
}

void SvgCost::leave() {
    open_.pop_back();
}

void SvgCost::text(QStringView text) {
    rules_ += static_cast<std::uint64_t>(text.count(u'{'));
}

bool SvgCost::isBearable() {
    if (nodes_.empty() || !weigh(0, 1)) return false;
    return nodes_[0].weight <= kMostElements && nodes_[0].weight * rules_ <= kMostRuleTrials;
}

/// Finds weight and height of an element whose nesting begins at `depth`; false when a level or
/// weight is too large, or the element contains itself. Every element is visited once.
bool SvgCost::weigh(std::size_t index, int depth) {
    auto& node = nodes_[index];
    if (node.height > 0) return depth + node.height <= kMostLevels + 1;
    if (node.height < 0 || depth > kMostLevels) return false;
    node.height = -1;
    Node whole;
    whole.weight = 1;
    for (auto child = node.firstChild; child != kNone; child = nodes_[child].nextSibling)
        if (!add(whole, child, depth)) return false;
    if (const auto used = byId_.constFind(node.target);
        !node.target.isEmpty() && used != byId_.constEnd() && !add(whole, *used, depth))
        return false;
    node.weight = whole.weight;
    node.height = whole.height + 1;
    return true;
}

bool SvgCost::add(Node& whole, std::size_t part, int depth) {
    if (!weigh(part, depth + 1)) return false;
    whole.weight = std::min(whole.weight + nodes_[part].weight, kMostElements + 1);
    whole.height = std::max(whole.height, nodes_[part].height);
    return true;
}

} // namespace tintra
