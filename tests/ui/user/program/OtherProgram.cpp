// other_program [KIND=DATA…]
//
// Another program of the desktop, for drags between programs: a row to drag for each kind of data
// ("text/plain=#123456"), and a place that takes every drop and prints what it is offered, a kind a
// line. It also tells when a drag is accepted elsewhere, and when one comes in.

#include <QApplication>
#include <QColor>
#include <QDrag>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <cstdio>

namespace {

void tell(const char* what) {
    std::puts(what);
    std::fflush(stdout);
}

QMimeData* dataOf(const QString& kind, const QString& value) {
    auto* data = new QMimeData;
    if (kind == QStringLiteral("application/x-color"))
        data->setColorData(QColor(value));
    else
        data->setData(kind, value.toUtf8());
    return data;
}

class Offer final : public QLabel {
public:
    Offer(const QString& kind, const QString& value) : QLabel(kind), kind_(kind), value_(value) {
        setMinimumSize(200, 40);
    }

protected:
    void mousePressEvent(QMouseEvent*) override {}
    void mouseMoveEvent(QMouseEvent*) override {
        auto* drag = new QDrag(this);
        drag->setMimeData(dataOf(kind_, value_));
        connect(drag, &QDrag::actionChanged, this, [](Qt::DropAction action) {
            if (action != Qt::IgnoreAction) tell("accepted");
        });
        drag->exec(Qt::CopyAction);
    }

private:
    QString kind_, value_;
};

class Taker final : public QLabel {
public:
    Taker() : QLabel(QStringLiteral("Drop here")) {
        setMinimumSize(200, 80);
        setAcceptDrops(true);
    }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override {
        tell("entered");
        event->acceptProposedAction();
    }
    void dropEvent(QDropEvent* event) override {
        for (const auto& kind : event->mimeData()->formats()) {
            const auto text = QString::fromUtf8(event->mimeData()->data(kind)).simplified();
            std::printf("%s=%s\n", kind.toUtf8().constData(), text.toUtf8().constData());
        }
        tell("end");
        event->acceptProposedAction();
    }
};

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Other Program"));
    auto* rows = new QVBoxLayout(&window);
    const auto arguments = QApplication::arguments();
    for (const auto& argument : arguments.mid(1)) {
        const auto equals = argument.indexOf(QLatin1Char('='));
        rows->addWidget(new Offer(argument.left(equals), argument.mid(equals + 1)));
    }
    rows->addWidget(new Taker);
    window.move(0, 40);
    window.show();
    return QApplication::exec();
}
