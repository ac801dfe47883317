#include "state/Preferences.h"
#include "state/StoredBench.h"
#include "state/StoredContrast.h"
#include "state/StoredLaunchState.h"
#include "state/StoredWorkspace.h"
#include "tests/support/FakeDesktop.h"

#include <cstdint>
#include <cstdlib>

using namespace tintra;

namespace {

/// A record that is read must be written so that the same is read again.
template <auto decode, auto encode>
void readAndWrite(std::string_view text) {
    const auto record = decode(text);
    if (record && decode(encode(*record)) != record) std::abort();
}

constexpr std::string_view kPreferences = "TintraPreferences";

/// The document as another run with it would write it; nothing when it is set aside.
std::optional<std::string> rewritten(std::string_view text) {
    FakeDesktop desktop{{}};
    desktop.defaults.records.emplace(kPreferences, text);
    Preferences preferences(desktop.services);
    preferences.restore();
    if (desktop.defaults.writes.contains(std::string(kPreferences))) std::abort();
    if (!desktop.defaults.asideKeys.empty()) return std::nullopt;
    preferences.persist();
    return desktop.defaults.data(kPreferences);
}

void readAndWritePreferences(std::string_view text) {
    const auto once = rewritten(text);
    if (once && rewritten(*once) != once) std::abort();
}

constexpr void (*kRecords[])(std::string_view) = {
    readAndWritePreferences,
    readAndWrite<decodedWorkspace, encodedWorkspace>,
    readAndWrite<decodedWorkspaces, encodedWorkspaces>,
    readAndWrite<decodedLaunchState, encodedLaunchState>,
    readAndWrite<decodedContrast, encodedContrast>,
    readAndWrite<decodedBench, encodedBench>,
};

} // namespace

/// Reads the bytes as each of the records that outlive a run.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const auto& read : kRecords)
        read({reinterpret_cast<const char*>(data), size});
    return 0;
}
