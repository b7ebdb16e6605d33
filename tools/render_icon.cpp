// Renders one SVG file into a square PNG with a transparent ground, with the same renderer
// that shows the icons in the program: render_icon FILE.svg SIZE FILE.png

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    const QStringList args = QGuiApplication::arguments();
    if (args.size() != 4)
        return 2;
    QSvgRenderer renderer(args[1]);
    const int size = args[2].toInt();
    if (!renderer.isValid() || size < 1)
        return 1;
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return image.save(args[3]) ? 0 : 1;
}
