// The least that a program with Qt Widgets can be: one empty window.

#include <QApplication>
#include <QWidget>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.show();
    return QApplication::exec();
}
