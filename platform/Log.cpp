#include "platform/Log.h"

#include <unistd.h>

#include <algorithm>
#include <string>

namespace tintra {

void StandardErrorLog::line(std::string_view text) {
    std::string line(text);
    std::ranges::replace(line, '\n', ' ');
    line += '\n';
    // One call, so that lines of several threads do not mix. Nobody can be told of a failure.
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
}

} // namespace tintra
