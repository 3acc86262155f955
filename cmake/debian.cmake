# cpack -G DEB: one package with the programs that this build has, its dependencies named.
set(CPACK_PACKAGE_NAME contrats)
set(CPACK_PACKAGE_VENDOR KORVALDIS)
set(CPACK_PACKAGE_CONTACT "KORVALDIS <contrats@korvaldis.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Contrats de travail des aidants à domicile")
set(CPACK_PACKAGE_DESCRIPTION "Fenêtre des contrats, outil de données et pilote de scénarios d'une association d'aide à domicile.")
set(CPACK_GENERATOR DEB)
set(CPACK_STRIP_FILES ON)
# Programs alone.
set(CPACK_COMPONENTS_ALL programmes)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
# Libraries, read from the programs. What is looked for when they run is named here: the client of a server, a window's
# archives, pictures, fonts and French texts.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libpq5")
if(CONTRATS_HOTE)
  get_property(libzip_paquet GLOBAL PROPERTY CONTRATS_PAQUET_LIBZIP)
  string(APPEND CPACK_DEBIAN_PACKAGE_DEPENDS
    ", ${libzip_paquet}, libqt6svg6, qt6-translations-l10n, fonts-dejavu-core, fonts-liberation2")
endif()
include(CPack)
