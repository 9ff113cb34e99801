not a program
