#include "platform/senales.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace qa {

namespace {

int g_tubo[2] = {-1, -1};

extern "C" void AlRecibir(int) {
    const char c = 1;
    [[maybe_unused]] auto n = ::write(g_tubo[0], &c, 1);
}

} // namespace

void AlTerminar(std::function<void()> cerrar) {
    if (g_tubo[0] < 0 && ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, g_tubo) != 0) return;
    ::fcntl(g_tubo[0], F_SETFL, O_NONBLOCK);
    auto* aviso =
        new QSocketNotifier(g_tubo[1], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(aviso, &QSocketNotifier::activated, aviso, [cerrar = std::move(cerrar)] {
        char buf[16];
        [[maybe_unused]] auto n = ::read(g_tubo[1], buf, sizeof buf);
        if (cerrar) cerrar();
    });
    struct sigaction sa {};
    sa.sa_handler = AlRecibir;
    sigemptyset(&sa.sa_mask);
    sa.sa_flags = SA_RESTART;
    ::sigaction(SIGTERM, &sa, nullptr);
    ::sigaction(SIGINT, &sa, nullptr);
}

} // namespace qa
