# The three OpenCV modules that the project uses, as targets opencv_core, opencv_imgproc and opencv_features2d.
# Debian's package with OpenCV's CMake files pulls in every module and what those need (dozens of packages),
# so natively the three small packages are found by their files instead.
find_package(OpenCV 4.6 QUIET CONFIG COMPONENTS core imgproc features2d)
if(NOT OpenCV_FOUND)
    find_path(FIELDCAL_OPENCV_INCLUDE opencv2/core.hpp PATH_SUFFIXES opencv4 REQUIRED)
    foreach(module core flann imgproc features2d)
        find_library(FIELDCAL_OPENCV_${module} opencv_${module} REQUIRED)
        add_library(opencv_${module} UNKNOWN IMPORTED GLOBAL)
        set_target_properties(opencv_${module} PROPERTIES
            IMPORTED_LOCATION ${FIELDCAL_OPENCV_${module}}
            INTERFACE_INCLUDE_DIRECTORIES ${FIELDCAL_OPENCV_INCLUDE})
    endforeach()
    target_link_libraries(opencv_imgproc INTERFACE opencv_core)
    target_link_libraries(opencv_features2d INTERFACE opencv_imgproc opencv_flann opencv_core)
endif()
