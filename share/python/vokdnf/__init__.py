"""VOK's engine over DNF; YumIO.py is the door to it."""
