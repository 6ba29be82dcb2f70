#pragma once

// Settings in a temporary folder for the whole run, then GoogleTest. Call after the
// application object exists.
int runTests(int argc, char **argv);
