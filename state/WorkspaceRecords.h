#pragma once

#include "platform/Uuid.h"
#include "state/StoredWorkspace.h"

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tintra {

class DefaultsStore;

/// The windows' records on their way to the defaults store. The text of each further window is
/// kept, so that a change in one window costs the encoding of that window alone, and a record that
/// says what is stored already is not written again. Main loop.
class WorkspaceRecords {
public:
    static constexpr std::string_view kPrimaryKey = "TintraWorkspace";
    static constexpr std::string_view kExtrasKey = "TintraExtraWorkspaces";
    static constexpr std::string_view kLaunchKey = "TintraLaunchState";

    explicit WorkspaceRecords(DefaultsStore& defaults) : defaults_(defaults) {}

    /// What is stored under a key; nothing when there is no record.
    std::optional<std::string> read(std::string_view key);
    void write(std::string_view key, std::string text);
    void remove(std::string_view key);
    /// Keeps a record that could not be understood under another name.
    void setAside(std::string_view key);

    /// A further window's record as it is to stand in the list.
    void setExtra(const Uuid& window, const StoredWorkspace& record);
    void dropExtra(const Uuid& window) { extras_.erase(window); }
    bool hasExtra(const Uuid& window) const { return extras_.contains(window); }
    /// Writes the list of the further windows, in this order; each must have been set.
    void writeExtras(std::span<const Uuid> order);

private:
    DefaultsStore& defaults_;
    std::map<std::string, std::string, std::less<>> stored_; ///< as last read or written
    std::unordered_map<Uuid, std::string> extras_;           ///< one record each, as text
};

} // namespace tintra
