// Keeps the library non-empty while its folder fills.
