#include "cli/FileOutput.h"

#include <filesystem>

namespace tintra::cli {

Written writeOutput(Session& session, const std::string& file, ByteView bytes, Existing existing) {
    if (file == "-") {
        session.print(asText(bytes));
        return Written::toOutput;
    }
    const auto error = writeFile(file, bytes, existing);
    if (!error) return Written::toFile;
    const bool exists = existing == Existing::refuse && std::filesystem::exists(file);
    session.failure(file, exists ? error->why + " (--force replaces it)" : error->why);
    return Written::no;
}

} // namespace tintra::cli
