# SPDX-License-Identifier: GPL-3.0-or-later
# Opens the folders of a package to all, whatever the mask of whoever makes it. Run by cpack.
file(CHMOD_RECURSE ${CPACK_TEMPORARY_DIRECTORY} DIRECTORY_PERMISSIONS
     OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
