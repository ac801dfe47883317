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

/// What decodes must be written so that it decodes to the same.
template <class Decode, class Encode>
void checkRecord(std::string_view text, Decode decode, Encode encode) {
    const auto record = decode(text);
    if (record && decode(encode(*record)) != record) std::abort();
}

void checkPreferences(std::string_view text) {
    static FakeDesktop desktop("unused");
    desktop.defaults.records = {{"TintraPreferences", std::string(text)}};
    Preferences first(desktop.services);
    first.restore();
    first.persist();
    const auto written = desktop.defaults.records["TintraPreferences"];
    Preferences second(desktop.services);
    second.restore();
    second.persist();
    if (desktop.defaults.records["TintraPreferences"] != written) std::abort();
}

} // namespace

/// Reads any bytes as every record that the program keeps.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    checkRecord(text, decodedWorkspace, encodedWorkspace);
    checkRecord(text, decodedWorkspaces, encodedWorkspaces);
    checkRecord(text, decodedLaunchState, encodedLaunchState);
    checkRecord(text, decodedBench, encodedBench);
    checkRecord(text, decodedContrast, encodedContrast);
    checkPreferences(text);
    return 0;
}
