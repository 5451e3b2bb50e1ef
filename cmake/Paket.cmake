# What is installed, in two layouts:
#   tasinabilir  one folder with everything in it, the libraries included: unpack and start
#   sistem       the Debian package: program folder /usr/lib/varnek, launcher, menu entry, icon, guide
# Both bring an empty data file under a name of its own, which the program copies into the data file's place at a user's
# very first start. Made by scripts/package.sh.
set(simge_klasoru "${CMAKE_SOURCE_DIR}/src/resources/simge")
set(kilavuz_klasoru "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/kilavuz")

set_target_properties(Varnek varnek-veri PROPERTIES INSTALL_RPATH "$ORIGIN:$ORIGIN/kitaplik")

set(bos_dosya "${CMAKE_BINARY_DIR}/bos/Varnek-bos.vtb")
add_custom_command(OUTPUT "${bos_dosya}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${CMAKE_BINARY_DIR}/bos"
    COMMAND "${CMAKE_COMMAND}" -E rm -f "${bos_dosya}"
    COMMAND varnek-veri yeni "${bos_dosya}"
    DEPENDS varnek-veri varnek-motor VERBATIM)
add_custom_target(varnek-bos DEPENDS "${bos_dosya}")
set(bos_izinleri PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

install(TARGETS Varnek varnek-veri varnek-motor DESTINATION . COMPONENT tasinabilir)
install(FILES "${bos_dosya}" DESTINATION bos ${bos_izinleri} COMPONENT tasinabilir)
install(FILES "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/odbcinst.ini" paket/qt.conf paket/BENIOKU.txt
    "${simge_klasoru}/varnek.svg" DESTINATION . COMPONENT tasinabilir)
install(DIRECTORY "${kilavuz_klasoru}" DESTINATION . COMPONENT tasinabilir)
get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
foreach(yer PLUGINS TRANSLATIONS)
    execute_process(COMMAND "${qmake}" -query QT_INSTALL_${yer} OUTPUT_VARIABLE klasor OUTPUT_STRIP_TRAILING_WHITESPACE)
    install(CODE "set(QT_${yer} \"${klasor}\")" COMPONENT tasinabilir)
endforeach()
install(SCRIPT cmake/Kitapliklar.cmake COMPONENT tasinabilir)

install(TARGETS Varnek varnek-veri varnek-motor DESTINATION lib/varnek COMPONENT sistem)
install(FILES "${bos_dosya}" DESTINATION lib/varnek/bos ${bos_izinleri} COMPONENT sistem)
install(FILES "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/odbcinst.ini" DESTINATION lib/varnek COMPONENT sistem)
install(DIRECTORY "${kilavuz_klasoru}" DESTINATION share/varnek COMPONENT sistem)
install(PROGRAMS paket/varnek.sh DESTINATION bin RENAME varnek COMPONENT sistem)
install(FILES paket/varnek.desktop DESTINATION share/applications COMPONENT sistem)
install(FILES paket/copyright CHANGELOG.md DESTINATION share/doc/varnek COMPONENT sistem)
install(FILES "${simge_klasoru}/varnek.svg" DESTINATION share/icons/hicolor/scalable/apps COMPONENT sistem)
foreach(boy 16 24 32 48 64 128 256)
    install(FILES "${simge_klasoru}/varnek-${boy}.png" DESTINATION share/icons/hicolor/${boy}x${boy}/apps
        RENAME varnek.png COMPONENT sistem)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL sistem)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGE_VENDOR Tovrek)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_SISTEM_PACKAGE_NAME varnek)
set(CPACK_DEBIAN_SISTEM_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1 CACHE STRING "The Debian package's revision")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Tovrek <destek@tovrek.example>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.tovrek.example")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The printouts' font, and the toolkit's own texts in Turkish.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, cups")
set(CPACK_COMPONENT_SISTEM_DESCRIPTION "Cost calculator for small manufacturers (Turkish)
Keeps materials with their prices and products with the materials they use, and
works out each product's cost with labour, profit and other percentages.")
include(CPack)
