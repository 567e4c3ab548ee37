# Installs CONSTRUCTION into a folder whose name is a trap, and tries what an observer gets: -P verifie.cmake
# -DCONSTRUCTION=build -DDOSSIER=where
set(ici "${DOSSIER}/Télescope d'été (n°2)/Velmoria à l'essai")
file(REMOVE_RECURSE "${DOSSIER}")

function(joue attendu sortie) # joue(STATUS VAR COMMAND...)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE dit ERROR_VARIABLE explique RESULT_VARIABLE statut
                  WORKING_DIRECTORY "${DOSSIER}")
  if(NOT statut EQUAL attendu)
    message(FATAL_ERROR "status ${statut}, expected ${attendu}: ${ARGN}\n${dit}${explique}")
  endif()
  set(${sortie} "${dit}" PARENT_SCOPE)
endfunction()

file(MAKE_DIRECTORY "${DOSSIER}")
joue(0 _ ${CMAKE_COMMAND} --install ${CONSTRUCTION} --prefix ${ici})

set(programmes velmoria velmoria-aujourdhui velmoria-banc velmoria-scenario)
foreach(nom ${programmes} installe-bureau.sh LICENCE LISEZMOI.txt data/LICENCE-catalogues.txt data/LISEZMOI.txt
        data/notes.txt data/config_altaz.ini data/vitessealtaz.ini data/inversion.ini data/messier.cat data/ngc7.cat
        data/img/liste.txt data/date/2000/janvier/sg0.txt data/date/2001/decembre/sg0.txt aide/index.html aide/style.css
        demo/demonstration.scn demo/mise_en_service.scn icones/velmoria-256.png icones/velmoria-banc-256.png)
  if(NOT EXISTS "${ici}/${nom}")
    message(SEND_ERROR "${nom}: not installed")
  endif()
endforeach()
file(SHA256 ${ici}/icones/velmoria-256.png icone)
file(SHA256 ${ici}/icones/velmoria-banc-256.png icone_banc)
if(icone STREQUAL icone_banc)
  message(SEND_ERROR "the two programs have the same icon")
endif()

# What must stay behind: libraries, tests, and any path back to where it was built.
file(GLOB_RECURSE tout RELATIVE ${ici} ${ici}/*)
foreach(nom ${tout})
  if(nom MATCHES "\\.(so(\\.[0-9]+)*|a|donnees|copie)$" OR nom MATCHES "essai|captures-|banc_")
    message(SEND_ERROR "${nom}: has no place in what is handed out")
  endif()
endforeach()
foreach(nom ${programmes})
  file(READ_ELF ${ici}/${nom} RPATH rpath RUNPATH runpath)
  if(rpath OR runpath)
    message(SEND_ERROR "${nom}: looks for libraries in ${rpath}${runpath}")
  endif()
endforeach()

# Another folder is the current one, and the build tree lies in another place: the data must be those beside it.
joue(0 dit ${ici}/velmoria-scenario ${ici}/demo/demonstration.scn)
if(NOT dit MATCHES "monture az=" OR NOT dit MATCHES "fin\n")
  message(SEND_ERROR "the demonstration did not come to its end:\n${dit}")
endif()
joue(0 _ ${ici}/velmoria-scenario ${ici}/demo/mise_en_service.scn)
file(WRITE ${DOSSIER}/vitesse.scn "demarre\nmontre vitessealtaz(0)\n")
file(READ ${ici}/data/vitessealtaz.ini vitesses)
string(REGEX REPLACE "^ *[0-9]+" "4321" vitesses "${vitesses}")
file(WRITE ${ici}/data/vitessealtaz.ini "${vitesses}")
joue(0 dit ${ici}/velmoria-scenario ${DOSSIER}/vitesse.scn)
if(NOT dit STREQUAL "vitessealtaz(0) = 4321\n")
  message(SEND_ERROR "not the data beside the program: ${dit}")
endif()

file(REMOVE_RECURSE "${DOSSIER}")
