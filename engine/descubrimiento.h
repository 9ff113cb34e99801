#pragma once
// The engines in a folder: at most one from each sub-folder, the first in the listing that is
// an engine file; only when there is no sub-folder, one lying in the folder itself. An engine
// file is a name ending in "com" or "exe" (its entry drops the last four characters) or a
// regular file, or a link to one, that we may run (its entry is its whole name); folders never.
// Listings are in name order without regard to case. Names in lower case.

#include <functional>
#include <string>
#include <vector>

namespace qa {

struct MotorEncontrado {
    std::string nombre; // the list entry
    std::string ruta;   // the full path to run
};

// `ceder` runs at each step of the search (it yields to pending events in the program).
std::vector<MotorEncontrado> BuscarMotores(const std::string& carpeta,
                                           const std::function<void()>& ceder = {});

} // namespace qa
