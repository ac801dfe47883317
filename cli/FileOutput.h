#pragma once

#include "cli/Session.h"
#include "platform/File.h"

#include <string>

namespace tintra::cli {

enum class Written { no, toOutput, toFile };

/// Writes a result to a file, or to standard output when that is “-”. What fails is reported.
Written writeOutput(Session& session, const std::string& file, ByteView bytes, Existing existing);

} // namespace tintra::cli
