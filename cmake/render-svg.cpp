// Renders an SVG file as a square PNG: SOURCE DESTINATION SIZE. The build uses it for the application's icon, and nothing else does.
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int count, char** arguments) {
    if (count != 4) return 2;
    const int size = QByteArray(arguments[3]).toInt();
    QSvgRenderer source(QString::fromLocal8Bit(arguments[1]));
    if (!source.isValid() || size <= 0) return 1;
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    source.render(&painter);
    painter.end();
    return picture.save(QString::fromLocal8Bit(arguments[2]), "PNG") ? 0 : 1;
}
