#include "platform/Reloj.h"

#include <chrono>
#include <thread>

namespace {
const auto Origen = std::chrono::steady_clock::now();
}

qint64 Ahora() {
    using namespace std::chrono;
    // Start at 1 so that 0 can keep meaning "no time mark" for MarcaTiempo.
    return duration_cast<milliseconds>(steady_clock::now() - Origen).count() + 1;
}

void DuermeHasta(qint64 plazo) {
    using namespace std::chrono;
    const auto fin = Origen + milliseconds(plazo - 1);
    std::this_thread::sleep_until(fin);
}
