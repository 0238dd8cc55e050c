// The least that a program with a window costs here: what the editor's start and memory are held against.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Torvane"));
    window.resize(520, 320);
    window.show();
    return QApplication::exec();
}
