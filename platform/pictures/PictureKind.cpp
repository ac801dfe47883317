#include "platform/pictures/PictureKind.h"

#include <algorithm>
#include <array>

namespace tintra {

namespace {

using namespace std::string_view_literals;

struct Signature {
    std::string_view start;
    std::size_t offset; ///< where `further` stands
    std::string_view further;
    PictureKind kind;
};

constexpr PictureKind kHeif{"heif", "heif"};
constexpr PictureKind kSvg{"svg", "pictures"};

// clang-format off
constexpr std::array kSignatures{
    Signature{"\x89PNG\r\n\x1a\n"sv, 0, {},       {"png",  "pictures"}},
    Signature{"\xff\xd8\xff"sv,      0, {},       {"jpeg", "pictures"}},
    Signature{"RIFF"sv,              8, "WEBP"sv, {"webp", "pictures"}},
    Signature{"II*\0"sv,             0, {},       {"tiff", "pictures"}},
    Signature{"MM\0*"sv,             0, {},       {"tiff", "pictures"}},
    Signature{"GIF8"sv,              0, {},       {"gif",  "pictures"}},
    Signature{"BM"sv,                0, {},       {"bmp",  "pictures"}},
    Signature{""sv,                  4, "ftypavif"sv, kHeif},
    Signature{""sv,                  4, "ftypavis"sv, kHeif},
    Signature{""sv,                  4, "ftyphei"sv,  kHeif},
    Signature{""sv,                  4, "ftyphev"sv,  kHeif},
    Signature{""sv,                  4, "ftypmif1"sv, kHeif},
    Signature{""sv,                  4, "ftypmsf1"sv, kHeif},
};
// clang-format on

bool shows(std::string_view head, const Signature& signature) {
    return head.starts_with(signature.start) && head.size() >= signature.offset &&
           head.substr(signature.offset).starts_with(signature.further);
}

/// Whether the text begins with a tag, a byte order mark and white space before it.
bool beginsLikeMarkup(std::string_view head) {
    constexpr auto mark = "\xef\xbb\xbf"sv;
    if (head.starts_with(mark)) head.remove_prefix(mark.size());
    const auto first = head.find_first_not_of(" \t\r\n"sv);
    return first != std::string_view::npos && head[first] == '<';
}

} // namespace

std::optional<PictureKind> pictureKind(ByteView head) {
    const auto text = asText(head);
    const auto* const found =
        std::ranges::find_if(kSignatures, [&](const auto& row) { return shows(text, row); });
    if (found != kSignatures.end()) return found->kind;
    if (beginsLikeMarkup(text)) return kSvg;
    return std::nullopt;
}

} // namespace tintra
