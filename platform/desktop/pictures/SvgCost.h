#pragma once

#include <QHash>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace tintra {

/// Adds up what painting a drawing takes: elements that "use" others, which use others again, grow
/// by powers, and the painter recurses into them.
class SvgCost {
public:
    /// An element begins; `target` is the identifier of what it uses. Answers false when elements
    /// are nested too deeply.
    bool enter(const QString& id, const QString& target);
    void leave();
    /// Text within the current element.
    void text(QStringView text);

    /// Whether the elements to paint, how deeply they nest and the style rules to try on each stay
    /// within what can be painted in a moment. False when an element uses itself.
    bool isBearable();

private:
    struct Node {
        std::size_t firstChild = kNone, nextSibling = kNone;
        QString target;
        std::uint64_t weight = 0; ///< elements painted; 0 until known
        int height = 0;           ///< levels of nesting; 0 until known, -1 while being found
    };
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    bool weigh(std::size_t index, int depth);
    bool add(Node& whole, std::size_t part, int depth);

    std::vector<Node> nodes_;
    std::vector<std::size_t> open_; ///< from the root to the current element
    QHash<QString, std::size_t> byId_;
    std::uint64_t rules_ = 0;
};

} // namespace tintra
