// Nothing of its own: what the test programs read is compiled beside it, once.
