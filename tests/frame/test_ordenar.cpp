// The hidden sorted lists that the computer players lean on to rank cards and seats.
#include "frame/Ordenar.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

TEST(Ordenar, ClavesDeCifrasFijasSeLeenEnOrdenDesdeAmbosExtremos) {
    ListaOrdenada lista;
    const std::pair<const char*, int> entradas[] = {{"050", 1}, {"007", 2}, {"100", 3},
                                                    {"012", 4}, {"000", 5}, {"099", 6}};
    for (const auto& [texto, dato] : entradas) lista.Agrega(texto, dato);
    const char* orden[] = {"000", "007", "012", "050", "099", "100"};
    const int datos[] = {5, 2, 4, 1, 6, 3};
    ASSERT_EQ(lista.Cuenta(), 6);
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(lista.Texto(i), orden[i]);
        EXPECT_EQ(lista.Dato(i), datos[i]);
        EXPECT_EQ(lista.TextoUltimo(i), orden[5 - i]);
        EXPECT_EQ(lista.DatoUltimo(i), datos[5 - i]);
    }
}

TEST(Ordenar, ClavesIgualesGuardanElOrdenDeLlegada) {
    ListaOrdenada lista;
    // Agrega tells where each item went: after every equal key already there.
    EXPECT_EQ(lista.Agrega("05", 1), 0);
    EXPECT_EQ(lista.Agrega("03", 2), 0);
    EXPECT_EQ(lista.Agrega("05", 3), 2);
    EXPECT_EQ(lista.Agrega("05", 4), 3);
    EXPECT_EQ(lista.Agrega("04", 5), 1);
    const int delante[] = {2, 5, 1, 3, 4};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(lista.Dato(i), delante[i]);
    // From the back the last of the equals comes first.
    EXPECT_EQ(lista.DatoUltimo(0), 4);
    EXPECT_EQ(lista.DatoUltimo(2), 1);
}

TEST(Ordenar, ElDatoViajaConSuTextoComoEnUnaOrdenacionEstable) {
    std::mt19937 azar(2024);
    std::uniform_int_distribution<int> clave(0, 60); // many repeats
    std::vector<std::pair<QString, int>> esperado;
    ListaOrdenada lista;
    for (int i = 0; i < 300; ++i) {
        const QString texto =
            QString::number(clave(azar)).rightJustified(3, '0') + "|s" + QString::number(i % 4 + 1);
        lista.Agrega(texto, i);
        esperado.emplace_back(texto, i);
    }
    std::stable_sort(esperado.begin(), esperado.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    ASSERT_EQ(lista.Cuenta(), 300);
    for (int i = 0; i < 300; ++i) {
        EXPECT_EQ(lista.Texto(i), esperado[i].first);
        EXPECT_EQ(lista.Dato(i), esperado[i].second);
    }
    lista.Quita(0);
    EXPECT_EQ(lista.Dato(0), esperado[1].second);
    lista.Limpia();
    EXPECT_EQ(lista.Cuenta(), 0);
}
