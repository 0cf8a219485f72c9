# Run by CPack once the Debian package is made (CPACK_POST_BUILD_SCRIPTS).
#
# CPack adds postinst and postrm scripts that run ldconfig whenever a library
# lies one folder below /usr/lib. /usr/lib/vost is a private folder the loader
# never searches, so the package goes without them, and with lintian's overrides.
find_program(DPKG_DEB dpkg-deb REQUIRED)
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(tree ${CPACK_TOPLEVEL_DIRECTORY}/finished)
    file(REMOVE_RECURSE ${tree})
    execute_process(COMMAND ${DPKG_DEB} --raw-extract ${package} ${tree} COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE ${tree}/DEBIAN/postinst ${tree}/DEBIAN/postrm)
    file(INSTALL ${CMAKE_CURRENT_LIST_DIR}/lintian-overrides DESTINATION ${tree}/usr/share/lintian/overrides
         FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    file(RENAME ${tree}/usr/share/lintian/overrides/lintian-overrides ${tree}/usr/share/lintian/overrides/vost)
    file(MD5 ${tree}/usr/share/lintian/overrides/vost overrides_md5)
    file(APPEND ${tree}/DEBIAN/md5sums "${overrides_md5}  usr/share/lintian/overrides/vost\n")
    execute_process(COMMAND ${DPKG_DEB} -Zgzip --root-owner-group --build ${tree} ${package}
                    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE ${tree})
endforeach()
