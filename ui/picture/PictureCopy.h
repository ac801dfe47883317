#pragma once

#include "platform/Services.h"
#include "state/ImageSource.h"

#include <QImage>
#include <QSize>
#include <functional>
#include <memory>

namespace tintra {

/// A picture as it is shown: read once in some detail, then scaled to whatever size a view has,
/// both in the background. Main loop.
class PictureCopy {
public:
    explicit PictureCopy(Services& services) : services_(services) {}

    /// Of which picture; none when it holds none. Lets go of the one before.
    void setSource(const ImageSource& source);
    /// How large it is to be shown, device pixels. Asked again while it is being made, only the
    /// last size counts.
    void setSize(QSize size);

    /// As large as last asked for, or of a size asked for before; null until there is one.
    const QImage& scaled() const { return scaled_; }
    /// With more pixels than are shown, where the picture has them; null until it is read.
    const QImage& detail() const { return detail_; }
    bool hasFailed() const { return failed_; }
    /// Is told when any of these has changed.
    std::function<void()> changed;

private:
    struct Made {
        QImage detail, scaled;
        bool failed = false;
    };
    struct Order;
    static Made make(const Order& order);
    int sideWanted() const;
    void begin();
    void take(Made made);

    Services& services_;
    ImageSource source_;
    QSize size_;
    QImage detail_, scaled_;
    int detailSide_ = 0; ///< as asked for
    bool failed_ = false, isWorking_ = false, isStale_ = false;
    /// What is being made of another picture comes back to nobody.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

} // namespace tintra
