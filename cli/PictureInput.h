#pragma once

#include "cli/Session.h"
#include "platform/Pictures.h"

#include <memory>
#include <string>

namespace tintra::cli {

/// Opens a picture; “-” is standard input. What fails is reported and null.
std::shared_ptr<const Picture> pictureInput(Session& session, const std::string& file);

/// Reports why a picture gave nothing: the file's own reason, or that it is no image.
void reportPictureError(Session& session, const std::string& file, const PictureError& error);

} // namespace tintra::cli
