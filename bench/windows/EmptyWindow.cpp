// What any program of the toolkit needs to its first window: the measure for the start of the desktop
// program.

#include <QApplication>
#include <QWidget>

int main(int count, char** words) {
    QApplication application(count, words);
    QWidget window;
    window.resize(1100, 700);
    window.show();
    return QApplication::exec();
}
