# SPDX-FileCopyrightText: 2026 Brivanta Works
# SPDX-License-Identifier: AGPL-3.0-or-later
# Read by cpack for each kind of package: which component it holds, and where.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(component system)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(component portable)
  set(CPACK_PACKAGE_FILE_NAME orvani-${CPACK_PACKAGE_VERSION}-linux-${CPACK_ORVANI_PROCESSOR})
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
set(CPACK_INSTALL_CMAKE_PROJECTS "${build};Orvani;${component};/")
