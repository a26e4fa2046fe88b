// What the precompiled headers of the tests are made with; gmock_main has the main function.
