/* Solves many small linear systems, read from a text file, with one call to factor all matrices and one call to
 * solve for all right-hand sides; prints the solutions and the largest residual. The usage text tells the format. */
#include <vonkk3.h>

#include <ctype.h>
#include <errno.h>
#include <math.h>
#include <stdarg.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { EXIT_BAD_INPUT = 1, EXIT_SINGULAR = 2, EXIT_OTHER = 3 };

static const char usage[] =
    "usage: solve [file | -]\n"
    "\n"
    "Solves linear systems A x = b of one order. The input (standard input without a file) begins with a line\n"
    "    order count\n"
    "and goes on with a line for each row of each system: the row of A and then the number of b.\n"
    "Blank lines and everything from a # to the end of its line are skipped.\n"
    "\n"
    "A pivot below 2^-23 (about 1.2e-7) in magnitude counts as zero. The bound is absolute: multiply the rows of\n"
    "systems with very small numbers by a constant.\n"
    "\n"
    "Exit status: 0 solved, 1 bad input, 2 a singular system, 3 any other failure.\n";

static const double tolerance = 1.0 / (1 << 23); /* the library's own */
static const uint32_t untouched = UINT32_MAX;    /* no row has this index */

typedef struct {
    FILE *file;
    const char *name;
    unsigned long line;
    char *text;
    size_t size;
} Input;

/* The systems as read: count times order rows of order + 1 numbers, the last of them b's. */
typedef struct {
    uint32_t order;
    uint32_t count;
    double *rows;
} Systems;

/* The factors of all matrices side by side: row i of all, then row i + 1 of all. In an array, the library tests for
 * matrix n's last pivot not the pivot itself but the element n matrix rows (of order numbers) behind it. Side by
 * side, that element lies in slot 2n, always one not written yet, so it holds the 1 that factor puts there and the
 * test passes; hence 2 count slots. firstSingular tests the true last pivots. */
typedef struct {
    double *numbers;
    uint32_t *pivots;
} Factors;

static void failAtLine(const Input *input, const char *format, ...)
{
    va_list arguments;
    fprintf(stderr, "solve: %s, line %lu: ", input->name, input->line);
    va_start(arguments, format);
    vfprintf(stderr, format, arguments);
    va_end(arguments);
    fputc('\n', stderr);
    exit(EXIT_BAD_INPUT);
}

static void *resize(void *block, size_t count, size_t size)
{
    void *resized = count <= SIZE_MAX / size ? realloc(block, count * size) : NULL;
    if (resized == NULL) {
        fprintf(stderr, "solve: out of memory\n");
        exit(EXIT_OTHER);
    }
    return resized;
}

/* Reads a line of any length, without its end. Returns 0 at the end of the input. */
static int readLine(Input *input)
{
    size_t length = 0;
    int character;
    ++input->line;
    while ((character = getc(input->file)) != EOF && character != '\n') {
        if (character == '\0') {
            failAtLine(input, "a zero byte: this is not text");
        }
        input->text[length++] = (char)character;
        if (length == input->size) {
            input->size *= 2;
            input->text = resize(input->text, input->size, 1);
        }
    }
    if (ferror(input->file)) {
        failAtLine(input, "cannot read: %s", strerror(errno));
    }
    input->text[length] = '\0';
    return character != EOF || length > 0;
}

static char *skipSpace(char *text)
{
    while (isspace((unsigned char)*text)) {
        ++text;
    }
    return text;
}

/* The start of the next line that holds more than space and comment, or NULL at the end of the input. */
static char *nextContent(Input *input)
{
    while (readLine(input)) {
        input->text[strcspn(input->text, "#")] = '\0';
        char *content = skipSpace(input->text);
        if (*content != '\0') {
            return content;
        }
    }
    return NULL;
}

/* The length of the word that text starts with. */
static size_t wordLength(const char *text)
{
    return strcspn(text, " \t\r\v\f");
}

/* As much of a word as a message should quote. */
static int shownLength(const char *word)
{
    size_t length = wordLength(word);
    return length < 40 ? (int)length : 40;
}

static uint32_t parseSize(const Input *input, char **text, const char *meaning)
{
    const char *word = *text;
    size_t length = wordLength(word);
    unsigned long long size = strtoull(word, NULL, 10);
    if (length == 0 || strspn(word, "0123456789") != length) {
        failAtLine(input, "expected the %s, a whole number, and found '%.*s'", meaning, shownLength(word), word);
    }
    if (size == 0) {
        failAtLine(input, "the %s must be at least 1", meaning);
    }
    if (size > UINT32_MAX) {
        failAtLine(input, "the %s %.*s is too large", meaning, shownLength(word), word);
    }
    *text = skipSpace(*text + length);
    return (uint32_t)size;
}

static double parseNumber(const Input *input, char **text)
{
    char *end;
    double number = strtod(*text, &end);
    if (end != *text + wordLength(*text)) {
        failAtLine(input, "'%.*s' is not a number", shownLength(*text), *text);
    }
    if (!isfinite(number)) {
        failAtLine(input, "'%.*s' is not a finite number", shownLength(*text), *text);
    }
    *text = skipSpace(end);
    return number;
}

static void readSizes(Input *input, Systems *systems)
{
    char *text = nextContent(input);
    if (text == NULL) {
        failAtLine(input, "the input ends before the order and the count");
    }
    systems->order = parseSize(input, &text, "order");
    systems->count = parseSize(input, &text, "count");
    if (*text != '\0') {
        failAtLine(input, "expected the order and the count only, and found '%.*s'", shownLength(text), text);
    }
    /* The library's strides are 32-bit byte counts: a system as read and a row of all factors have to fit. */
    const uint32_t mostNumbers = INT32_MAX / sizeof(double);
    if (systems->order >= mostNumbers || systems->order > mostNumbers / (systems->order + 1)
        || systems->count > mostNumbers / 2 / systems->order) {
        failAtLine(input, "%lu systems of order %lu are too large", (unsigned long)systems->count,
                   (unsigned long)systems->order);
    }
}

static void readRow(Input *input, const Systems *systems, size_t row, double *numbers)
{
    const unsigned long system = (unsigned long)(row / systems->order + 1);
    const unsigned long rowOfSystem = (unsigned long)(row % systems->order + 1);
    const unsigned long expected = (unsigned long)systems->order + 1;
    unsigned long found = 0;
    char *text = nextContent(input);
    if (text == NULL) {
        failAtLine(input, "the input ends before row %lu of system %lu", rowOfSystem, system);
    }
    for (; *text != '\0'; ++found) {
        if (found == expected) {
            failAtLine(input, "row %lu of system %lu has more than its %lu numbers", rowOfSystem, system, expected);
        }
        numbers[found] = parseNumber(input, &text);
    }
    if (found < expected) {
        failAtLine(input, "row %lu of system %lu has %lu of its %lu numbers", rowOfSystem, system, found, expected);
    }
}

/* Memory grows with what has really been read: the sizes that the input claims are not believed beforehand. */
static Systems readSystems(Input *input)
{
    Systems systems = {0, 0, NULL};
    readSizes(input, &systems);
    const size_t rowLength = (size_t)systems.order + 1;
    const size_t rowCount = (size_t)systems.order * systems.count;
    size_t capacity = 0;
    for (size_t row = 0; row < rowCount; ++row) {
        if (row == capacity) {
            capacity = 2 * capacity + 1;
            systems.rows = resize(systems.rows, capacity, rowLength * sizeof(double));
        }
        readRow(input, &systems, row, systems.rows + row * rowLength);
    }
    const char *rest = nextContent(input);
    if (rest != NULL) {
        failAtLine(input, "found '%.*s' after the last system", shownLength(rest), rest);
    }
    return systems;
}

static Systems readFile(const char *path)
{
    const int isStandardInput = strcmp(path, "-") == 0;
    Input input = {isStandardInput ? stdin : fopen(path, "r"), isStandardInput ? "standard input" : path, 0, NULL, 256};
    if (input.file == NULL) {
        fprintf(stderr, "solve: cannot open %s: %s\n", path, strerror(errno));
        exit(EXIT_BAD_INPUT);
    }
    input.text = resize(NULL, input.size, 1);
    Systems systems = readSystems(&input);
    free(input.text);
    if (!isStandardInput) {
        fclose(input.file);
    }
    return systems;
}

static void stopUnlessDone(VonkStatus status, const char *action)
{
    if (status != vonkOk) {
        fprintf(stderr, "solve: cannot %s: status %d\n", action, (int)status);
        exit(EXIT_OTHER);
    }
}

static size_t factorsRowLength(const Systems *systems)
{
    return 2 * (size_t)systems->count * systems->order;
}

/* Factors every matrix up to the first singular one, if there is one that the library itself notices. */
static VonkStatus factor(const Systems *systems, Factors *factors)
{
    const size_t matrixRow = systems->order * sizeof(double);
    const size_t inputRow = matrixRow + sizeof(double);
    const size_t pivotCount = (size_t)systems->count * systems->order;
    const size_t rowLength = factorsRowLength(systems);
    factors->numbers = resize(NULL, systems->order, rowLength * sizeof(double));
    for (size_t element = 0; element < systems->order * rowLength; ++element) {
        factors->numbers[element] = 1;
    }
    factors->pivots = resize(NULL, pivotCount, sizeof(uint32_t));
    for (size_t pivot = 0; pivot < pivotCount; ++pivot) {
        factors->pivots[pivot] = untouched;
    }
    return vonkLUDecomp_ma_64f(systems->rows, (int32_t)(systems->order * inputRow), (int32_t)inputRow, factors->pivots,
                               factors->numbers, (int32_t)matrixRow, (int32_t)(rowLength * sizeof(double)),
                               systems->order, systems->count);
}

/* The first singular system, or count. Rows are not moved by the factoring: the last row of a triangle is the row
 * that the last of its pivots names. The library stops at a singular matrix: the last one whose pivots it touched. */
static uint32_t firstSingular(const Systems *systems, const Factors *factors, VonkStatus status)
{
    const uint32_t last = systems->order - 1;
    for (uint32_t n = 0; n < systems->count; ++n) {
        const uint32_t *pivots = factors->pivots + (size_t)n * systems->order;
        const int stoppedHere =
            status == vonkErrSingular && (n + 1 == systems->count || pivots[systems->order] == untouched);
        const double *lastRow = factors->numbers + pivots[last] * factorsRowLength(systems);
        const double lastPivot = lastRow[(size_t)n * systems->order + last];
        if (stoppedHere || !(fabs(lastPivot) >= tolerance)) {
            return n;
        }
    }
    return systems->count;
}

static void stopIfSingular(const Systems *systems, const Factors *factors, VonkStatus status)
{
    uint32_t singular = firstSingular(systems, factors, status);
    if (singular < systems->count) {
        fprintf(stderr, "solve: system %lu is singular: a pivot is below 2^-23 in magnitude\n",
                (unsigned long)singular + 1);
        exit(EXIT_SINGULAR);
    }
}

static double *solve(const Systems *systems, const Factors *factors)
{
    const size_t vectorSize = systems->order * sizeof(double);
    const size_t rowCount = (size_t)systems->count * systems->order;
    double *rightSides = resize(NULL, rowCount, sizeof(double));
    double *solutions = resize(NULL, rowCount, sizeof(double));
    for (size_t row = 0; row < rowCount; ++row) {
        rightSides[row] = systems->rows[row * (systems->order + (size_t)1) + systems->order];
    }
    stopUnlessDone(vonkLUBackSubst_mava_64f(factors->numbers, (int32_t)vectorSize,
                                            (int32_t)(factorsRowLength(systems) * sizeof(double)), factors->pivots,
                                            rightSides, (int32_t)vectorSize, solutions, (int32_t)vectorSize,
                                            systems->order, systems->count),
                   "solve");
    free(rightSides);
    return solutions;
}

static void stopIfOverflown(const Systems *systems, const double *solutions)
{
    for (size_t row = 0; row < (size_t)systems->count * systems->order; ++row) {
        if (!isfinite(solutions[row])) {
            fprintf(stderr, "solve: the solution of system %lu overflows\n", (unsigned long)(row / systems->order + 1));
            exit(EXIT_OTHER);
        }
    }
}

static double largestResidual(const Systems *systems, const double *solutions)
{
    double largest = 0;
    for (size_t row = 0; row < (size_t)systems->count * systems->order; ++row) {
        const double *numbers = systems->rows + row * (systems->order + (size_t)1);
        const double *solution = solutions + row / systems->order * systems->order;
        double residual = -numbers[systems->order];
        for (uint32_t j = 0; j < systems->order; ++j) {
            residual += numbers[j] * solution[j];
        }
        if (!(fabs(residual) <= largest)) {
            largest = fabs(residual);
        }
    }
    return largest;
}

/* One line per system. Adding 0 turns a solution's -0 into 0. */
static void printSolutions(const Systems *systems, const double *solutions)
{
    const size_t numberCount = (size_t)systems->count * systems->order;
    int width = 0;
    for (size_t i = 0; i < numberCount; ++i) {
        int needed = snprintf(NULL, 0, "%.15g", solutions[i] + 0.0);
        width = needed > width ? needed : width;
    }
    const int labelWidth = snprintf(NULL, 0, "%lu", (unsigned long)systems->count);
    for (uint32_t n = 0; n < systems->count; ++n) {
        printf("system %*lu:", labelWidth, (unsigned long)n + 1);
        for (uint32_t i = 0; i < systems->order; ++i) {
            printf("  %*.15g", width, solutions[(size_t)n * systems->order + i] + 0.0);
        }
        putchar('\n');
    }
}

int main(int argc, char **argv)
{
    const char *path = argc > 1 ? argv[1] : "-";
    if (strcmp(path, "--help") == 0) {
        fputs(usage, stdout);
        return EXIT_SUCCESS;
    }
    if (argc > 2 || (path[0] == '-' && path[1] != '\0')) {
        fputs(usage, stderr);
        return EXIT_BAD_INPUT;
    }
    Systems systems = readFile(path);
    Factors factors;
    VonkStatus status = factor(&systems, &factors);
    if (status != vonkErrSingular) {
        stopUnlessDone(status, "factor");
    }
    stopIfSingular(&systems, &factors, status);
    double *solutions = solve(&systems, &factors);
    stopIfOverflown(&systems, solutions);
    printSolutions(&systems, solutions);
    printf("largest residual |A x - b|: %.3g\n", largestResidual(&systems, solutions));
    free(solutions);
    free(factors.pivots);
    free(factors.numbers);
    free(systems.rows);
    if (fflush(stdout) != 0) {
        fprintf(stderr, "solve: cannot write: %s\n", strerror(errno));
        return EXIT_OTHER;
    }
    return EXIT_SUCCESS;
}
