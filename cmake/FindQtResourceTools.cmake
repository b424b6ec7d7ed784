# Finds lrelease, which compiles translations (.ts to .qm), and rcc, which compiles resources. Neither is on the search
# path everywhere, and lrelease has no CMake package of its own; both lie where the Qt that is linked was installed.
#
#   QtResourceTools_LRELEASE, QtResourceTools_RCC   the programs
get_filename_component(_qt_prefix "${Qt6_DIR}/../../../.." ABSOLUTE)
set(_qt_tool_hints
    "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}" "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS}"
    "${_qt_prefix}/lib/qt6/bin" "${_qt_prefix}/lib/qt6/libexec"
    /usr/lib/qt6/bin /usr/lib/qt6/libexec)
find_program(QtResourceTools_LRELEASE NAMES lrelease lrelease6 lrelease-qt6 HINTS ${_qt_tool_hints})
find_program(QtResourceTools_RCC NAMES rcc rcc6 rcc-qt6 HINTS ${_qt_tool_hints})
mark_as_advanced(QtResourceTools_LRELEASE QtResourceTools_RCC)
unset(_qt_prefix)
unset(_qt_tool_hints)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(QtResourceTools REQUIRED_VARS QtResourceTools_LRELEASE QtResourceTools_RCC)
