#include "ui/actions/ActionTable.h"

#include "ui/actions/ActionRows.h"
#include "ui/frame/MainWindow.h"
#include "ui/shared/Text.h"

#include <QStringList>
#include <algorithm>
#include <vector>

namespace tintra {
namespace {

std::vector<ActionRow> gathered() {
    std::vector<ActionRow> rows;
    for (const auto& part : {actionRows::ofFile(), actionRows::ofEdit(), actionRows::ofPalette(),
                             actionRows::ofSwatch(), actionRows::ofBench(),
                             actionRows::ofContrast(), actionRows::ofLibrary(),
                             actionRows::ofView(), actionRows::ofWindow(), actionRows::ofKeys()})
        rows.insert(rows.end(), part.begin(), part.end());
    return rows;
}

bool isIn(const ActionRow& row, const ActionContext& context) {
    return context.window && row.in.contains(context.window->kind());
}

} // namespace

std::span<const ActionRow> allActions() {
    static const auto rows = gathered();
    return rows;
}

const ActionRow& actionRow(ActionId id) {
    const auto rows = allActions();
    return *std::ranges::find(rows, id, &ActionRow::value);
}

QList<QKeySequence> keySequences(const ActionRow& row) {
    QList<QKeySequence> keys;
    const auto texts = QString::fromLatin1(row.keys);
    for (const auto& text : texts.split(QStringLiteral("; "), Qt::SkipEmptyParts))
        keys << QKeySequence::fromString(text, QKeySequence::PortableText);
    return keys;
}

QString keyText(const ActionRow& row) {
    const auto keys = keySequences(row);
    return keys.isEmpty() ? QString() : keys.first().toString(QKeySequence::NativeText);
}

QString actionTitle(const ActionRow& row, const ActionContext& context) {
    return row.title && isIn(row, context) ? row.title(context) : worded(row.text);
}

bool isEnabled(const ActionRow& row, const ActionContext& context) {
    return isIn(row, context) && (!row.isEnabled || row.isEnabled(context));
}

bool perform(ActionId id, const ActionContext& context) {
    const auto& row = actionRow(id);
    if (!row.perform || !isEnabled(row, context)) return false;
    row.perform(context);
    return true;
}

} // namespace tintra
