// Writes assets/sonidos/NN.wav for every sound of the table. Run it by hand when a sound
// changes; the files it writes are kept with the sources and travel in the resources.
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "Sintesis.h"

int main(int argc, char** argv) {
    const std::filesystem::path carpeta = argc > 1 ? argv[1] : TRUFAL_SONIDOS_DIR;
    std::filesystem::create_directories(carpeta);
    for (int id : gensonidos::IdsSonidos) {
        char nombre[16];
        std::snprintf(nombre, sizeof nombre, "%02d.wav", id);
        const std::vector<uint8_t> wav = gensonidos::GeneraWav(id);
        std::ofstream f(carpeta / nombre, std::ios::binary);
        f.write(reinterpret_cast<const char*>(wav.data()), std::streamsize(wav.size()));
        if (!f) {
            std::fprintf(stderr, "No se pudo escribir %s\n", (carpeta / nombre).c_str());
            return 1;
        }
    }
    return 0;
}
