#pragma once

#include <QProperty>

namespace tintra {

/// While one lives, properties hold back their notices, so that no view sees half of a change.
/// Groups nest; the outermost sends what has gathered, once a property. Main loop.
class UpdateGroup {
public:
    UpdateGroup() { Qt::beginPropertyUpdateGroup(); }
    ~UpdateGroup() { Qt::endPropertyUpdateGroup(); }
    UpdateGroup(const UpdateGroup&) = delete;
    UpdateGroup& operator=(const UpdateGroup&) = delete;
};

} // namespace tintra
