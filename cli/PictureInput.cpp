#include "cli/PictureInput.h"

#include <fmt/format.h>

#include <iterator>

namespace tintra::cli {

namespace {

OpenedPicture open(Session& session, const std::string& file) {
    if (file != "-") return openPicture(file);
    const std::string content(std::istreambuf_iterator<char>(session.in()), {});
    return openPicture(asBytes(content));
}

} // namespace

void reportPictureError(Session& session, const std::string& file, const PictureError& error) {
    if (error.kind == PictureError::Kind::file)
        session.failure(file, error.why);
    else if (error.kind == PictureError::Kind::content)
        session.failure(file, "could not be read as an image");
    else
        session.failure(file, fmt::format("could not be read as an image ({})", error.why));
}

std::shared_ptr<const Picture> pictureInput(Session& session, const std::string& file) {
    const auto opened = open(session, file);
    if (const auto* error = std::get_if<PictureError>(&opened)) {
        reportPictureError(session, file, *error);
        return nullptr;
    }
    return std::get<std::shared_ptr<const Picture>>(opened);
}

} // namespace tintra::cli
