#include "palettes/Stylesheet.h"
#include "platform/File.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <map>
#include <mutex>

namespace tintra::Stylesheet {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargest = 1'000'000;

/// What was found out about files, each with the date of the file that was read.
class Verdicts {
public:
    std::optional<bool> find(const fs::path& file, fs::file_time_type date) {
        const std::scoped_lock guard(memoLock_);
        const auto known = memo_.find(file);
        if (known == memo_.end() || known->second.date != date) return std::nullopt;
        return known->second.isPalette;
    }
    void keep(const fs::path& file, fs::file_time_type date, bool isPalette) {
        const std::scoped_lock guard(memoLock_);
        memo_[file] = {date, isPalette};
    }

private:
    struct Verdict {
        fs::file_time_type date;
        bool isPalette = false;
    };
    std::mutex memoLock_;
    std::map<fs::path, Verdict> memo_;
};

Verdicts& verdicts() {
    static Verdicts shared;
    return shared;
}

bool isMinified(const fs::path& file) {
    return lowerCased(file.filename().string()).find(".min.") != std::string::npos;
}

std::string_view textOf(const Bytes& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

bool holdsVariableColour(std::string_view text) {
    const auto swatches = read(text);
    return std::ranges::any_of(swatches, [](const auto& s) { return s.name.has_value(); });
}

} // namespace

bool isPalette(const fs::path& file) {
    if (isMinified(file)) return false;
    std::error_code error;
    const auto date = fs::last_write_time(file, error);
    // A pipe would block the scan of a folder; only a regular file is read.
    if (error || !fs::is_regular_file(file, error)) return false;
    if (const auto known = verdicts().find(file, date)) return *known;
    const auto content = readFile(file, kLargest);
    const auto* bytes = std::get_if<Bytes>(&content);
    // Nothing is kept of a failure: it may be gone the next time while the date stays.
    if (bytes == nullptr || !isValidUtf8(textOf(*bytes))) return false;
    const bool verdict = holdsVariableColour(textOf(*bytes));
    verdicts().keep(file, date, verdict);
    return verdict;
}

} // namespace tintra::Stylesheet
