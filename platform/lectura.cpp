#include "platform/lectura.h"

#include <fcntl.h>
#include <unistd.h>

namespace qa {

int AbrirLecturaRegular(const std::string& ruta, struct stat& st) {
    const int fd = ::open(ruta.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return -1;
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        return -1;
    }
    return fd;
}

} // namespace qa
