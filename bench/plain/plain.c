/* The yardstick of the benches: what the C library alone takes to read every number of two input files and to print as
 * many lines and numbers as their model file has. It has no tables and checks nothing.
 *
 *   plain FIRST SECOND OUTPUT NODES BEAMS PLATES LOADS OTHERS
 *
 * The last five count the lines of a shape: nodes, frame elements, plate elements, beam loads, lines of one number. The
 * numbers in them are those read. */
#include <stdio.h>
#include <stdlib.h>

static double *numbers = NULL;
static size_t count = 0;
static size_t room = 0;

static void fail(const char *what)
{
    perror(what);
    exit(1);
}

static void keep(double number)
{
    if (count == room) {
        room = room != 0 ? 2 * room : 1024;
        numbers = (double *)realloc(numbers, room * sizeof(double));
        if (numbers == NULL) {
            fail("plain");
        }
    }
    numbers[count++] = number;
}

static void read_numbers(const char *path)
{
    char line[500];
    FILE *file = fopen(path, "r");
    if (file == NULL) {
        fail(path);
    }
    while (fgets(line, sizeof(line), file) != NULL) {
        char *at = line;
        while (*at != '\0') {
            char *end = at;
            const double number = strtod(at, &end);
            if (end == at) {
                ++at; /* no number starts here */
            } else {
                keep(number);
                at = end;
            }
        }
    }
    fclose(file);
}

static double next(void)
{
    static size_t at = 0;
    at = at + 1 < count ? at + 1 : 0;
    return numbers[at];
}

static int next_integer(void)
{
    return (int)next();
}

int main(int argc, char **argv)
{
    if (argc != 9) {
        fputs("usage: plain FIRST SECOND OUTPUT NODES BEAMS PLATES LOADS OTHERS\n", stderr);
        return 2;
    }
    keep(0.0);
    read_numbers(argv[1]);
    read_numbers(argv[2]);
    FILE *file = fopen(argv[3], "w");
    if (file == NULL) {
        fail(argv[3]);
    }
    for (long i = atol(argv[4]); i > 0; --i) {
        fprintf(file, "  %d, %g, %g, %g\n", next_integer(), next(), next(), next());
    }
    for (long i = atol(argv[5]); i > 0; --i) {
        fprintf(file, "  %d, BEAM, %d, %d, %d, %d, %g\n", next_integer(), next_integer(), next_integer(),
                next_integer(), next_integer(), next());
    }
    for (long i = atol(argv[6]); i > 0; --i) {
        fprintf(file, "  %d, PLATE, %d, %d, %d, %d, %d, %d, %d\n", next_integer(), next_integer(), next_integer(),
                next_integer(), next_integer(), next_integer(), next_integer(), next_integer());
    }
    for (long i = atol(argv[7]); i > 0; --i) {
        fprintf(file, "%d, BEAM, UNILOAD, GZ, NO, %g, %g, %g, %g, 0, 0, 0, 0\n", next_integer(), next(), next(),
                next(), next());
    }
    for (long i = atol(argv[8]); i > 0; --i) {
        fprintf(file, "  %d, NO, 000000, 0, 0, 0, 0, 0, 0\n", next_integer());
    }
    if (fclose(file) != 0) {
        fail(argv[3]);
    }
    return 0;
}
