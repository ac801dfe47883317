#pragma once

#include <string>

namespace tintra {

struct Services;
class Workspaces;

/// Says once that records cannot be written, and again only after all of them could be written.
/// Main loop.
class KeepingNotice {
public:
    KeepingNotice(Services& services, const Workspaces& workspaces);
    ~KeepingNotice();
    KeepingNotice(const KeepingNotice&) = delete;
    KeepingNotice& operator=(const KeepingNotice&) = delete;

private:
    void failed(const std::string& why);

    Services& services_;
    const Workspaces& workspaces_;
    bool isSaid_ = false;
};

} // namespace tintra
