// The window `Personal`: the four seats as they sit at the table, with all that belongs to a
// seat, and the settings of the table. Each control writes its setting at once; a change of
// the active seats is settled when the window closes, and may end the match in play.
#pragma once

#include "settings/Formulario.h"

#include <QUrl>
#include <functional>

// The bar's " Personalizar ": the window, modally; then, when the active seats changed, a new
// match.
void PulsaPersonalizar();
// The window alone.
void MuestraPersonal();
Formulario& FormularioPersonal();
// Lays the window out from the settings, without showing it.
void ColocaPersonal();

// The page that tells how to install the Spanish voices of the speech synthesiser.
inline const QString PAGINA_VOCES =
    QStringLiteral("https://github.com/espeak-ng/espeak-ng/blob/master/docs/guide.md#linux");
// Opens a page in the desktop's browser; false when there is none. Tests replace it.
inline std::function<bool(const QUrl&)> AbrePaginaWeb;
