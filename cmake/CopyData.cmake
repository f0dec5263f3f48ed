# Copies the shipped data (pluvane.ini, Symboles/, Exemples/) beside the programs
# at every build, so that bin/ is a complete application folder.
set(PLUVANE_DATA_DIR ${CMAKE_SOURCE_DIR}/data)
file(GLOB_RECURSE PLUVANE_DATA_FILES CONFIGURE_DEPENDS ${PLUVANE_DATA_DIR}/*)
set(PLUVANE_DATA_STAMP ${CMAKE_BINARY_DIR}/data.stamp)
add_custom_command(
  OUTPUT ${PLUVANE_DATA_STAMP}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/bin
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${PLUVANE_DATA_DIR} ${CMAKE_BINARY_DIR}/bin
  COMMAND ${CMAKE_COMMAND} -E touch ${PLUVANE_DATA_STAMP}
  DEPENDS ${PLUVANE_DATA_FILES}
  COMMENT "Copying pluvane.ini, Symboles and Exemples beside the programs")
add_custom_target(pluvane_data ALL DEPENDS ${PLUVANE_DATA_STAMP})
