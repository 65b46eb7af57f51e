# Copies the sample pictures and the models beside the program: ORIGEN is the resources' folder,
# DESTINO the program's. A file that is there and newer is the player's own and is left alone.
file(MAKE_DIRECTORY ${DESTINO}/Imagenes ${DESTINO}/Archivo)

function(copia_si_falta origen destino)
  get_filename_component(nombre ${origen} NAME)
  if(EXISTS ${destino}/${nombre} AND NOT ${origen} IS_NEWER_THAN ${destino}/${nombre})
    return()
  endif()
  file(COPY ${origen} DESTINATION ${destino})
  file(TOUCH ${destino}/${nombre})
endfunction()

file(GLOB muestras ${ORIGEN}/muestras/*)
foreach(muestra IN LISTS muestras)
  if(NOT IS_DIRECTORY ${muestra})
    copia_si_falta(${muestra} ${DESTINO}/Imagenes)
  endif()
endforeach()
if(EXISTS ${ORIGEN}/modelos/Modelos.tpu)
  copia_si_falta(${ORIGEN}/modelos/Modelos.tpu ${DESTINO}/Archivo)
endif()
