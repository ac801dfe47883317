#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

// render_icon DRAWING SIZE PICTURE: draws an SVG file as a square PNG.
int main(int argc, char** argv) {
    if (argc != 4) return 2;
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    const int side = QByteArray(argv[2]).toInt();
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    if (drawing.isValid() && picture.save(QString::fromLocal8Bit(argv[3]), "PNG")) return 0;
    std::fprintf(stderr, "render_icon: %s cannot be drawn as %s\n", argv[1], argv[3]);
    return 1;
}
