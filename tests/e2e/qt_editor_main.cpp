// A plain window of the toolkit's with a text that can be edited, dragged from and dropped into: a
// partner whose line ends and types are the toolkit's own, unlike those of the program under test.
//
//     corvane_qt_editor FILE

#include <QApplication>
#include <QFile>
#include <QPlainTextEdit>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QPlainTextEdit editor;
    QFile file(QString::fromLocal8Bit(argv[argc - 1]));
    if (argc > 1 && file.open(QFile::ReadOnly))
        editor.setPlainText(QString::fromUtf8(file.readAll()));
    QFont font = editor.font();
    font.setPixelSize(26);
    editor.setFont(font);
    editor.setWindowTitle(QStringLiteral("text"));
    editor.show();
    return QApplication::exec();
}
