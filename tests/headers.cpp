// Owns the headers that the tests share.
