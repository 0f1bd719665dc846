// Fixtures shared by the test programs.
