#pragma once

#include "platform/Clipboard.h"

namespace tintra {

/// The clipboard of the running QGuiApplication. A colour travels as application/x-color, which
/// GTK and KDE programs take: sRGB within 0...1, 16 bits a component.
class QtClipboard final : public Clipboard {
public:
    void set(const Content& content) override;
    Content content() const override;
};

} // namespace tintra
