# Relative to the prefix. Programs that read files beside themselves have their folder here, as libraries do.
set(ZELTRONA_PROGRAM_DIR lib/zeltrona CACHE STRING "The program folder, below the install prefix")
set(ZELTRONA_PROGRAM_FOLDER /usr/${ZELTRONA_PROGRAM_DIR}) # as the manual names it
set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/zeltrona)

# zeltrona_install_link(<target> <link>): a relative symbolic link, both names below the prefix.
function(zeltrona_install_link target link)
  get_filename_component(folder ${link} DIRECTORY)
  file(RELATIVE_PATH relative /prefix/${folder} /prefix/${target})
  install(CODE "
    set(folder \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}\")
    file(MAKE_DIRECTORY \"\${folder}\")
    file(CREATE_LINK ${relative} \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${link}\" SYMBOLIC)
    message(STATUS \"Linking: \${CMAKE_INSTALL_PREFIX}/${link}\")")
endfunction()

# zeltrona_install_compressed(<template> <name> <folder>): fills in versions and dates and installs <name>.gz, the same
# bytes from the same sources.
function(zeltrona_install_compressed template name folder)
  configure_file(${template} ${name} @ONLY)
  set(made ${CMAKE_CURRENT_BINARY_DIR}/${name})
  add_custom_command(OUTPUT ${made}.gz COMMAND gzip -9nkf ${made} DEPENDS ${made} VERBATIM)
  add_custom_target(compressed_${name} ALL DEPENDS ${made}.gz)
  install(FILES ${made}.gz DESTINATION ${folder})
endfunction()
