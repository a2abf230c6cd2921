// The hidden sorted lists of the computer players: texts kept in ascending order, each with a
// whole number of item data (a seat or a position). A caller reads the list from either end.
// Keys are numbers written with a fixed count of digits, so text order is number order. Equal
// keys keep the order in which they came: a later item with the same key goes after the earlier
// ones, and so reads last from the front and first from the back.
#pragma once

#include <QString>
#include <vector>

struct ListaOrdenada {
    struct Elemento {
        QString Texto;
        int Dato = 0;
    };
    std::vector<Elemento> Elementos;

    void Limpia() { Elementos.clear(); }
    int Cuenta() const { return static_cast<int>(Elementos.size()); }
    // Inserts in order and returns the 0-based index where the item went.
    int Agrega(const QString& texto, int dato = 0);
    // 0-based access, as the list control's List(i) and ItemData(i).
    const QString& Texto(int i) const { return Elementos.at(i).Texto; }
    int Dato(int i) const { return Elementos.at(i).Dato; }
    // From the back: Ultimo(0) is the greatest.
    const QString& TextoUltimo(int i = 0) const {
        return Elementos.at(Elementos.size() - 1 - i).Texto;
    }
    int DatoUltimo(int i = 0) const { return Elementos.at(Elementos.size() - 1 - i).Dato; }
    void Quita(int i) { Elementos.erase(Elementos.begin() + i); }
};

inline ListaOrdenada Lis_Ordenar, Lis_Ordenar2, Lis_GanadasSim;
