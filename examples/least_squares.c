/* Fits NIST's reference data by linear least squares, a QR decomposition and a back substitution for each set, and
 * prints how many digits of the certified coefficients come out right. Usage: least_squares file..., as
 * those in nist/; nist/README.md tells the format. */
#include <vonkk3.h>

#include <errno.h>
#include <math.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { MOST_COEFFICIENTS = 16, MOST_OBSERVATIONS = 1000, LINE_SIZE = 512 };

static const double mostDigits = 15; /* all that the certified coefficients have */

typedef struct {
    const char *path;
    FILE *file;
    int line;
    char text[LINE_SIZE];
} Input;

/* The model is y = X b: a row of X and an element of y for each observation. */
typedef struct {
    uint32_t coefficients;
    uint32_t observations;
    double certified[MOST_COEFFICIENTS];
    double x[MOST_OBSERVATIONS][MOST_COEFFICIENTS];
    double y[MOST_OBSERVATIONS];
} DataSet;

static void fail(const Input *input, const char *problem)
{
    fprintf(stderr, "least_squares: %s, line %d: %s\n", input->path, input->line, problem);
    exit(EXIT_FAILURE);
}

/* The next line that holds more than space and comment. Returns 0 at the end of the file. */
static int nextLine(Input *input)
{
    while (fgets(input->text, LINE_SIZE, input->file) != NULL) {
        ++input->line;
        if (strchr(input->text, '\n') == NULL && !feof(input->file)) {
            fail(input, "the line is too long");
        }
        input->text[strcspn(input->text, "#\r\n")] = '\0';
        if (input->text[strspn(input->text, " \t")] != '\0') {
            return 1;
        }
    }
    if (ferror(input->file)) {
        fail(input, strerror(errno));
    }
    return 0;
}

/* All numbers of a text, which must be `count` of them and nothing else. */
static void parseNumbers(const Input *input, const char *text, double *numbers, uint32_t count)
{
    for (uint32_t n = 0; n < count; ++n) {
        char *end;
        numbers[n] = strtod(text, &end);
        if (end == text || !isfinite(numbers[n])) {
            fail(input, "expected another number");
        }
        text = end;
    }
    if (text[strspn(text, " \t")] != '\0') {
        fail(input, "expected nothing more");
    }
}

/* Returns whether the model is a polynomial. */
static int readModel(Input *input, DataSet *set)
{
    char kind[16], rest;
    unsigned terms = 0;
    if (!nextLine(input) || sscanf(input->text, "%15s %u %c", kind, &terms, &rest) != 2
        || (strcmp(kind, "polynomial") != 0 && strcmp(kind, "linear") != 0)) {
        fail(input, "expected 'polynomial' or 'linear' and the number of terms");
    }
    if (terms < 1 || terms >= MOST_COEFFICIENTS) {
        fail(input, "expected 1 to 15 terms");
    }
    set->coefficients = terms + 1;
    for (uint32_t b = 0; b < set->coefficients; ++b) {
        unsigned number = 0;
        int length = 0;
        if (!nextLine(input) || sscanf(input->text, " B%u%n", &number, &length) != 1 || number != b) {
            fail(input, "expected the next certified coefficient");
        }
        parseNumbers(input, input->text + length, &set->certified[b], 1);
    }
    return kind[0] == 'p';
}

static void readObservation(const Input *input, DataSet *set, int isPolynomial)
{
    double numbers[1 + MOST_COEFFICIENTS];
    if (set->observations == MOST_OBSERVATIONS) {
        fail(input, "too many observations");
    }
    parseNumbers(input, input->text, numbers, isPolynomial ? 2 : set->coefficients);
    double *row = set->x[set->observations];
    row[0] = 1;
    for (uint32_t b = 1; b < set->coefficients; ++b) {
        row[b] = isPolynomial ? row[b - 1] * numbers[1] : numbers[b];
    }
    set->y[set->observations++] = numbers[0];
}

static void readDataSet(const char *path, DataSet *set)
{
    Input input = {path, fopen(path, "r"), 0, ""};
    if (input.file == NULL) {
        perror(path);
        exit(EXIT_FAILURE);
    }
    const int isPolynomial = readModel(&input, set);
    set->observations = 0;
    while (nextLine(&input)) {
        readObservation(&input, set, isPolynomial);
    }
    if (set->observations < set->coefficients) {
        fail(&input, "fewer observations than coefficients");
    }
    fclose(input.file);
}

static void require(VonkStatus status, const char *path)
{
    if (status == vonkErrSingular) {
        fprintf(stderr,
                "least_squares: %s: of a column, too little is left once the columns before it are taken off: its "
                "squared norm is below 2^-23. If its numbers are small, scale them up\n",
                path);
        exit(EXIT_FAILURE);
    }
    if (status != vonkOk) {
        fprintf(stderr, "least_squares: %s: status %d\n", path, (int)status);
        exit(EXIT_FAILURE);
    }
}

/* The coefficients that make |X b - y| smallest. The data are used as they are, unscaled. */
static void fit(const DataSet *set, const char *path, double *coefficients)
{
    static double factors[MOST_OBSERVATIONS][MOST_COEFFICIENTS];
    static double work[MOST_OBSERVATIONS];
    require(vonkQRDecomp_m_64f(set->x[0], sizeof set->x[0], work, factors[0], sizeof factors[0], set->coefficients,
                               set->observations),
            path);
    require(vonkQRBackSubst_mv_64f(factors[0], sizeof factors[0], work, set->y, coefficients, set->coefficients,
                                   set->observations),
            path);
}

/* The log relative error, -log10(|c - e| / |c|), or of the absolute error where the certified number c is 0. */
static double correctDigits(double computed, double certified)
{
    double error = fabs(computed - certified) / (certified == 0 ? 1 : fabs(certified));
    double digits = -log10(error); /* an infinity if there is no error */
    return digits > mostDigits ? mostDigits : digits > 0 ? digits : 0;
}

static void printFit(const char *path, const DataSet *set, const double *computed)
{
    const char *slash = strrchr(path, '/');
    const char *name = slash != NULL ? slash + 1 : path;
    for (uint32_t b = 0; b < set->coefficients; ++b) {
        printf("%-10.*s B%-10u %23.15g %23.15g %8.1f\n", (int)strcspn(name, "."), name, (unsigned)b, computed[b],
               set->certified[b], correctDigits(computed[b], set->certified[b]));
    }
}

int main(int argc, char **argv)
{
    static DataSet set;
    const int asksForHelp = argc == 2 && strcmp(argv[1], "--help") == 0;
    if (asksForHelp || argc < 2 || argv[1][0] == '-') {
        fprintf(asksForHelp ? stdout : stderr, "usage: least_squares file...\n");
        return asksForHelp ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    printf("%-10s %-11s %23s %23s %8s\n", "data set", "coefficient", "computed", "certified", "digits");
    for (int n = 1; n < argc; ++n) {
        const char *path = argv[n];
        double coefficients[MOST_COEFFICIENTS];
        readDataSet(path, &set);
        fit(&set, path, coefficients);
        printFit(path, &set, coefficients);
    }
    return fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
