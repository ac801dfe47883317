#pragma once

#include <QByteArray>
#include <cstdint>
#include <optional>

namespace tintra {

/// A drawing without anything that reaches beyond its own text: references to other files, style
/// sheets and entities are left out, embedded pictures (base64 PNG, JPEG, GIF, WebP) are kept while
/// all of them together decode to at most `pictureBytes`.
///
/// Nothing when the text is not well-formed, its root is no svg element, or painting it would cost
/// out of proportion (SvgCost).
std::optional<QByteArray> selfContainedSvg(const QByteArray& svg, std::uint64_t pictureBytes);

} // namespace tintra
