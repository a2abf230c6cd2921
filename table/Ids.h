// The numbers by which the table names its buttons, pointers and sounds. One number is one
// meaning everywhere: Pic_Boton(BOTON_SALIR) is always the exit.
#pragma once

// ---- The bar, Pic_Boton ----
constexpr int BOTON_COMENZAR = 1, BOTON_PERSONALIZAR = 2, BOTON_NORMAS = 3, BOTON_TUTOR = 4,
              BOTON_ESTADISTICAS = 5, BOTON_MARCADOR = 6, BOTON_AYUDA = 7, BOTON_SALIR = 8;

// ---- Action buttons beside a seat, Pic_Pulsador ----
constexpr int PULSADOR_CARTA = 81, PULSADOR_SERVIDO = 82, PULSADOR_SERIE_ANTERIOR = 83,
              PULSADOR_SERIE_SIGUIENTE = 84, PULSADOR_DOBLAR = 85, PULSADOR_SEGURO = 86,
              PULSADOR_AZAR = 87, PULSADOR_DESCARTO = 88, PULSADOR_PUMBA = 95, PULSADOR_CERRAR = 96,
              PULSADOR_SEGUIR = 97, PULSADOR_MUS = 98, PULSADOR_NO_MUS = 99, PULSADOR_SI_HAY = 100,
              PULSADOR_NO_HAY = 101, PULSADOR_MANDO = 102;

// ---- Pointers: below 20 the system's own shapes, above it the program's ----
constexpr int CURSOR_FLECHA = 0, CURSOR_RELOJ = 11, CURSOR_PROHIBIDO = 12;
constexpr int CURSOR_INDICE = 21;     // can be clicked: a chip to stake, a seat to choose
constexpr int CURSOR_JUGABLE = 22;    // this card can be played
constexpr int CURSOR_NO_JUGABLE = 23; // this card can't be played
constexpr int CURSOR_ARRASTRE = 26;   // something is being dragged
constexpr int CURSOR_TOMAR = 27;      // can be taken
constexpr int CURSOR_CAMBIAR = 41;    // the special swap of the game
constexpr int CURSOR_VOLTEAR = 42;    // the card can be turned
constexpr int CURSOR_ABRIRSE = 43;    // the pair can be opened

// ---- Sounds ----
constexpr int SONIDO_SPIN = 4;         // a step of a spin's arrows
constexpr int SONIDO_SELECCION = 6;    // selectors, action-button press, chips, board buttons
constexpr int SONIDO_SUELTA = 7;       // action-button release, a selector changes
constexpr int SONIDO_BOTON = 9;        // bar and dialog buttons, Continuar
constexpr int SONIDO_PESTANA = 10;     // a folder tab of the history
constexpr int SONIDO_PASO = 11;        // the flashing mark of a pass or a bust
constexpr int SONIDO_TUTOR = 12;       // tutor signals, the choice of a seat
constexpr int SONIDO_GANA_MANO = 14;   // the win of a hand
constexpr int SONIDO_BARAJA = 20;      // the shuffle, synchronously
constexpr int SONIDO_FICHA = 22;       // a chip lands
constexpr int SONIDO_CARTA_SALE = 24;  // a card starts its flight, or is picked up
constexpr int SONIDO_CARTA_LLEGA = 25; // a card lands, or is put down
constexpr int SONIDO_CARTA_SUBE = 26;  // a card is raised or selected
