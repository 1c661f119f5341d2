/* Built as everything else is: shows whether the C library is the fortified one. */
#include <string.h>

int main(int count, char **arguments) {
    char buffer[8];
    strcpy(buffer, arguments[count - 1]);
    return buffer[0] == '\0';
}
