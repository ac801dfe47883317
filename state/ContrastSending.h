#pragma once

#include "colour/Contrast.h"
#include "colour/WashColor.h"
#include "palettes/Swatch.h"
#include "platform/Toasts.h"

#include <optional>
#include <span>
#include <string>

namespace tintra {

class ContrastBoard;

/// Sends colours to the contrast board, from whichever window, and says there what became of them.
/// Main loop.
class ContrastSending {
public:
    ContrastSending(ContrastBoard& board, Toasts& toasts, ToastPlace from)
        : board_(board), toasts_(toasts), from_(from) {}

    /// One that the board holds already is refused; a full board lets go of its oldest loose entry.
    void send(const WashColor& colour, std::optional<std::string> name) const;
    /// The same, and gives it the role; one that is held already takes the role.
    void send(const WashColor& colour, std::optional<std::string> name, Contrast::Role as) const;
    /// Fills the board up, and never lets go of an entry.
    void sendAll(std::span<const PaletteFile::Swatch> swatches) const;
    /// Sends it, or takes it off when the board holds it.
    void toggle(const WashColor& colour, std::optional<std::string> name) const;
    /// Takes an entry off.
    void remove(const Uuid& id) const;
    /// Another colour for an entry; one that another entry holds is refused.
    void replace(const Uuid& id, const WashColor& colour) const;
    /// Offers to undo what it changed.
    void sortByLightness(bool lightestFirst) const;

private:
    void say(std::string text, std::optional<ToastAction> action = {}) const;

    ContrastBoard& board_;
    Toasts& toasts_;
    ToastPlace from_;
};

} // namespace tintra
