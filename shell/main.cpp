#include <QApplication>
#include <QLabel>

// Stand-in window until the application shell lands.
int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QLabel label("Quintarena");
    label.resize(320, 120);
    label.show();
    return app.exec();
}
