#include <QApplication>
#include <QDir>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM",
            qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    if (qgetenv("XDG_RUNTIME_DIR").isEmpty()) {
        const QString xdg = QDir::tempPath() + QStringLiteral("/qa-board-xdg");
        QDir().mkpath(xdg);
        QFile::setPermissions(xdg, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                       QFileDevice::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", xdg.toLocal8Bit());
    }
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
