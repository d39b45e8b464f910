// A source for the targets that compile headers once: see cmake/CommonHeaders.cmake.
