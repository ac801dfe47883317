#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

namespace tintra {

class ContrastBoard;
class Theme;

/// The face of the specimen as this machine has it.
struct SpecimenFace {
    QFont font;   ///< in the specimen's size, in the weight that a browser would take
    QString note; ///< "Inter Regular, as a browser would choose"
};

/// The interface's own face stands for the system's, and for one that is not installed.
SpecimenFace specimenFace(const ContrastBoard& board, const Theme& theme);

/// The families that are installed and hold Latin letters, by name.
QStringList specimenFamilies();

} // namespace tintra
