#include "net/puertas.h"

#include <chrono>
#include <cmath>
#include <ctime>

namespace qa {

namespace {
std::tm Ahora(double* fraccion = nullptr) {
    const auto t = std::chrono::system_clock::now();
    const std::time_t s = std::chrono::system_clock::to_time_t(t);
    if (fraccion) {
        const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(t.time_since_epoch());
        *fraccion = static_cast<double>(ms.count() % 1000) / 1000.0;
    }
    std::tm tm{};
    localtime_r(&s, &tm);
    return tm;
}
} // namespace

int HoraSistema::Segundo() {
    return Ahora().tm_sec;
}

int32_t HoraSistema::SegundosDelDia() {
    double f = 0;
    const std::tm tm = Ahora(&f);
    return static_cast<int32_t>(std::lround(tm.tm_hour * 3600 + tm.tm_min * 60 + tm.tm_sec + f));
}

int32_t HoraSistema::Contador() {
    const auto n = std::chrono::steady_clock::now().time_since_epoch();
    const auto us = std::chrono::duration_cast<std::chrono::microseconds>(n).count();
    return static_cast<int32_t>(static_cast<uint32_t>(us & 0xFFFFFFFF));
}

} // namespace qa
