// The floor of a program's start: an application object that is made and leaves.

#include <QGuiApplication>

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    return 0;
}
