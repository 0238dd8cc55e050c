// Draws the editor's icon in the sizes that desktops ask for.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: make_icons <picture.svg> <folder>\n", stderr);
        return 2;
    }
    QSvgRenderer picture(arguments[1]);
    const QDir folder(arguments[2]);
    bool done = picture.isValid() && folder.mkpath(QStringLiteral("."));
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
        icon.fill(Qt::transparent);
        {
            QPainter painter(&icon);
            picture.render(&painter);
        }
        done = done && icon.save(folder.filePath(QStringLiteral("%1.png").arg(size)));
    }
    if (!done) {
        std::fprintf(stderr, "make_icons: %s could not be drawn into %s\n", qPrintable(arguments[1]),
                     qPrintable(arguments[2]));
    }
    return done ? 0 : 1;
}
