# Copies ORIGEN to DESTINO only when DESTINO doesn't exist yet.
if(NOT EXISTS "${DESTINO}")
  file(COPY_FILE "${ORIGEN}" "${DESTINO}")
endif()
