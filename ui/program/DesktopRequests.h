#pragma once

#include "platform/Uuid.h"
#include "platform/desktop/services/ApplicationService.h"
#include "ui/Ui.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <set>
#include <vector>

namespace tintra {

class AppState;

/// What the desktop asks of the running program. A file, palette or picture, opens in the front
/// window while that is empty, else in a new one; a palette that is open already comes up instead.
/// What cannot be read is said in the front window, and opens none. Main loop.
class DesktopRequests final {
public:
    /// So many windows at once is what somebody may have wanted; more is a slip of the hand.
    static constexpr std::size_t kMostFiles = 24;

    /// The action of that name for launchers.
    static constexpr const char* kNewPalette = "new-palette";

    explicit DesktopRequests(Ui& ui) : ui_(ui) {}

    /// For launchers and later processes; they hold while this lives.
    ApplicationRequests forService();

    /// Brings the front window up.
    void activate() { front(); }
    /// In order; beyond the first `kMostFiles` none is opened, which is said.
    void open(std::vector<std::filesystem::path> files);
    /// An empty palette, in the front window when that is empty already, else in a new one.
    void openNew();

private:
    struct Checked {
        std::filesystem::path file;
        bool isReadable = false;
    };
    void openChecked(const Checked& checked);
    /// The window in front, made when there is none, and brought up.
    AppState& front();
    bool isFree(const AppState& state) const;
    AppState* showing(const std::filesystem::path& file) const;

    Ui& ui_;
    std::set<Uuid> given_; ///< windows whose file may still be on its way
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

} // namespace tintra
