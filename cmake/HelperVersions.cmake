# Which versions of the helper may serve: those that a package lists, and those that it has replaced on
# its machine. A build tree has neither list.
option(LURKWELL_PACKAGED "Build for a package: only listed versions of the helper serve" OFF)

# Sets LURKWELL_DIGEST_LIST, the package's, and LURKWELL_REPLACED_LIST, which the machine keeps, for
# an installation below `prefix`.
function(lurkwell_digest_lists prefix)
  set(folder ${prefix}/${LURKWELL_APPLICATION_FOLDER})
  set(LURKWELL_DIGEST_LIST ${folder}/helper-digests PARENT_SCOPE)
  if(prefix STREQUAL /usr)
    set(folder /var/lib/lurkwell)
  endif()
  set(LURKWELL_REPLACED_LIST ${folder}/replaced-helpers PARENT_SCOPE)
endfunction()

# A program that looks into the lists of an installation below `prefix`.
function(lurkwell_with_digest_lists name prefix)
  lurkwell_digest_lists(${prefix})
  target_compile_definitions(${name} PRIVATE LURKWELL_PACKAGED
    LURKWELL_DIGEST_LIST="${LURKWELL_DIGEST_LIST}"
    LURKWELL_REPLACED_LIST="${LURKWELL_REPLACED_LIST}")
endfunction()

# Writes what a package for `prefix` runs at its installation and removal into a folder.
function(lurkwell_maintainer_scripts prefix folder)
  lurkwell_digest_lists(${prefix})
  foreach(script preinst postrm)
    configure_file(${CMAKE_SOURCE_DIR}/resources/desktop/${script}.in ${folder}/${script} @ONLY
      FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
        WORLD_READ WORLD_EXECUTE)
  endforeach()
endfunction()
