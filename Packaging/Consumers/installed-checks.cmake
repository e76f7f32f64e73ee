# What there is not is said: a component, or a version that programs built for this one could not use.
find_package(MekBomEngine 1.0 QUIET COMPONENTS Tables)
if(MekBomEngine_FOUND)
    message(FATAL_ERROR "A component that there is not was found")
endif()
find_package(MekBomEngine 2.0 QUIET)
if(MekBomEngine_FOUND)
    message(FATAL_ERROR "Another major version was found")
endif()
