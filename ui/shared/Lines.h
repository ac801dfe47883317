#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

namespace tintra {

/// A text broken into lines of at most that width, px.
QStringList linesOf(const QString& text, const QFont& font, qreal width);

/// As many lines as the width asks for, of lengths as even as can be.
QStringList evenLinesOf(const QString& text, const QFont& font, qreal width);

} // namespace tintra
