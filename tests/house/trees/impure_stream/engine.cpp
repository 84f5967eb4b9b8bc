#include <fstream>
