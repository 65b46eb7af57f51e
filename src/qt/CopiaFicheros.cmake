# SPDX-License-Identifier: GPL-3.0-or-later
# Puts the sample pictures, the models and the first games beside the program: ORIGEN is the
# resources' folder, DESTINO the program's. A picture that is there and newer is the player's own and
# is left alone. The models come as a supply of their own, which the program brings into the player's
# file. The first games are for a folder where nobody has played: beside one settings file, whatever
# its letter case, they do not come.
file(MAKE_DIRECTORY ${DESTINO}/Imagenes ${DESTINO}/Archivo)

file(GLOB muestras ${ORIGEN}/muestras/*)
foreach(muestra IN LISTS muestras)
  get_filename_component(nombre ${muestra} NAME)
  set(copia ${DESTINO}/Imagenes/${nombre})
  if(NOT IS_DIRECTORY ${muestra} AND NOT (EXISTS ${copia} AND NOT ${muestra} IS_NEWER_THAN ${copia}))
    file(COPY ${muestra} DESTINATION ${DESTINO}/Imagenes)
    file(TOUCH ${copia})
  endif()
endforeach()
configure_file(${ORIGEN}/modelos/Modelos.tpu ${DESTINO}/Archivo/SURTIDO.TPU COPYONLY)
if(NOT EXISTS ${DESTINO}/Archivo/Modelos.tpu)
  file(COPY ${ORIGEN}/modelos/Modelos.tpu DESTINATION ${DESTINO}/Archivo)
endif()
file(GLOB ajustes ${DESTINO}/[Tt][Ss][Rr]*33.[Ii][Nn][Ii])
if(NOT ajustes)
  file(GLOB ajustes ${ORIGEN}/estreno/*.ini)
  file(COPY ${ajustes} DESTINATION ${DESTINO})
endif()
