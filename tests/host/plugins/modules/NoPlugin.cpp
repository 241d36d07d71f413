// A shared library like any other.

extern "C" int answer() { return 42; }
