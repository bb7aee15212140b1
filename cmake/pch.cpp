// Carries the precompiled header; see cmake/Options.cmake.
