// The splash window `careta`, shown while the program starts.
#pragma once

void MuestraCareta();
void CierraCareta();
