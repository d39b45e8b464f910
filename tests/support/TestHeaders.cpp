// Compiled so that the headers of the tests are: see cmake/UnitTests.cmake.
