#pragma once

// The accessors of the three windows and of the menu bar. Each returns the one instance of its class and creates
// it if there is none. They are declared before the classes of the same names; inside a class's own members
// write ::Author() and so on, since there the plain name is the class and would create a second window.

class Menu;
class mainscreen;
class Window1;
class Author;

#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow" // an accessor has the name of its class on purpose
#endif
class Menu& Menu();
class mainscreen& mainscreen();
class Window1& Window1();
class Author& Author();
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif
