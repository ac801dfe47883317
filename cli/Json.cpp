#include "cli/Json.h"

namespace tintra::cli {

std::string hexText(const WashColor& colour) {
    return colour.isOpaque() ? colour.hex() : '#' + colour.hexWithAlpha();
}

Json colourJson(const WashColor& colour) {
    return {{"hex", hexText(colour)},
            {"alpha", colour.a},
            {"r", colour.r},
            {"g", colour.g},
            {"b", colour.b}};
}

Json hexesJson(const std::vector<WashColor>& colours) {
    Json list = Json::array();
    for (const auto& colour : colours)
        list.push_back(hexText(colour));
    return list;
}

Json textOrNull(const std::optional<std::string>& text) {
    return text ? Json(*text) : Json();
}

SwatchBytes swatchBytes(const WashColor& colour) {
    const auto bytes = colour.overCheckerboard().srgb255();
    return {bytes.r, bytes.g, bytes.b};
}

std::string labelled(const Session& session, const WashColor& colour) {
    return session.block(swatchBytes(colour)) + hexText(colour);
}

} // namespace tintra::cli
