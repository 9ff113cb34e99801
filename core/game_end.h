#pragma once
// The rules end a game only by mate or stalemate; callers run these when the
// filter reports one.

namespace Variables {

void FinPorMate();
void FinPorAhogado();

} // namespace Variables
