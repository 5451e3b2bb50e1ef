# Run when the portable folder is installed: copies the libraries that the program needs into "kitaplik", the toolkit's
# plugins into "eklentiler", its Turkish texts into "ceviriler", the printouts' font into "yazitipi", and the licences of
# all into "lisanslar". What belongs to the system stays the system's: the C and C++ runtime, graphics drivers, the X
# server's own library and the fonts of the screen.
set(hedef "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
set(eklentiler platforms/libqxcb.so platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so)
list(TRANSFORM eklentiler PREPEND "${QT_PLUGINS}/" OUTPUT_VARIABLE moduller)
file(GET_RUNTIME_DEPENDENCIES
    EXECUTABLES "${hedef}/Varnek" "${hedef}/varnek-veri"
    LIBRARIES "${hedef}/libvarnek-motor.so"
    MODULES ${moduller}
    RESOLVED_DEPENDENCIES_VAR kitapliklar
    UNRESOLVED_DEPENDENCIES_VAR bulunmayanlar
    PRE_EXCLUDE_REGEXES
        "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv|gcc_s|stdc\\+\\+)\\.so"
        "^lib(GL|EGL|GLX|OpenGL|GLdispatch|drm|gbm)[.-]" "^lib(X11|X11-xcb|xcb|fontconfig|freetype|expat|z)\\.so")
if(bulunmayanlar)
    message(FATAL_ERROR "Libraries not found: ${bulunmayanlar}")
endif()
# The printing plugin only where the system can print: it and the system's printing library belong together.
list(APPEND eklentiler printsupport/libcupsprintersupport.so)
set(lisanslilar "")
foreach(eklenti IN LISTS eklentiler)
    get_filename_component(klasor "${eklenti}" DIRECTORY)
    file(INSTALL "${QT_PLUGINS}/${eklenti}" DESTINATION "${hedef}/eklentiler/${klasor}")
    list(APPEND lisanslilar "${QT_PLUGINS}/${eklenti}")
endforeach()
foreach(kitaplik IN LISTS kitapliklar)
    file(INSTALL "${kitaplik}" DESTINATION "${hedef}/kitaplik" FOLLOW_SYMLINK_CHAIN)
    file(REAL_PATH "${kitaplik}" gercek)
    list(APPEND lisanslilar "${gercek}")
endforeach()
file(GLOB yazitipi "/usr/share/fonts/truetype/liberation*/LiberationSansNarrow-*.ttf")
if(NOT yazitipi)
    message(FATAL_ERROR "The printouts' font (Liberation Sans Narrow) is not installed")
endif()
file(INSTALL ${yazitipi} DESTINATION "${hedef}/yazitipi")
file(INSTALL "${QT_TRANSLATIONS}/qtbase_tr.qm" DESTINATION "${hedef}/ceviriler")
list(APPEND lisanslilar ${yazitipi} "${QT_TRANSLATIONS}/qtbase_tr.qm")
foreach(dosya IN LISTS lisanslilar)
    string(REGEX REPLACE "^/usr/lib" "/lib" kisa "${dosya}")
    execute_process(COMMAND dpkg-query -S "${dosya}" "${kisa}" OUTPUT_VARIABLE paket ERROR_QUIET)
    if(paket MATCHES "^([^:]+):")
        set(paket "${CMAKE_MATCH_1}")
        if(EXISTS "/usr/share/doc/${paket}/copyright" AND NOT EXISTS "${hedef}/lisanslar/${paket}")
            file(INSTALL "/usr/share/doc/${paket}/copyright" DESTINATION "${hedef}/lisanslar" RENAME "${paket}" FOLLOW_SYMLINK_CHAIN)
        endif()
    endif()
endforeach()
