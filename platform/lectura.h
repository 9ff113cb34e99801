#pragma once
// The one way the program opens a file it reads: only a regular file, and without waiting.
#include <string>
#include <sys/stat.h>

namespace qa {

// A descriptor for reading `ruta`, or -1 when it cannot be opened or is no regular file: a
// FIFO is refused without waiting for a writer, a folder or a device holds no text of ours.
// `st` describes the open file.
int AbrirLecturaRegular(const std::string& ruta, struct stat& st);

} // namespace qa
