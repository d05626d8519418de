/* Tells the species of Fisher's iris flowers apart by their Mahalanobis distances to the three species' means
 * (quadratic discriminant analysis): the three 4 by 4 covariance matrices are factored in one call, and every
 * species' 150 linear systems are solved in one more, by LU or by Cholesky decomposition: the table is the same.
 * Usage: iris [--cholesky] [file.csv] */
#include <vonkk3.h>

#include <math.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>


enum { MEASUREMENTS = 4, SPECIES = 3, NAME_SIZE = 32, LINE_SIZE = 256, MOST_FLOWERS = 1000 };

static const char header[] = "sepal_length,sepal_width,petal_length,petal_width,species";
static const double tolerance = 1.0 / (1 << 23); /* the library's own: a smaller pivot counts as zero */

typedef struct {
    double measured[MEASUREMENTS];
    int species;
} Flower;

static Flower flowers[MOST_FLOWERS];
static int flowerCount;
static char speciesNames[SPECIES][NAME_SIZE];
static int speciesLines[SPECIES]; /* where each was met first */
static int speciesCount;

static void failAtLine(const char *path, int line, const char *problem)
{
    fprintf(stderr, "iris: %s, line %d: %s\n", path, line, problem);
    exit(EXIT_FAILURE);
}

static void require(VonkStatus status, const char *action)
{
    if (status != vonkOk) {
        fprintf(stderr, "iris: cannot %s: status %d%s\n", action, (int)status,
                status == vonkErrSingular    ? " (a covariance matrix is singular)"
                : status == vonkErrNotPosDef ? " (a covariance matrix is not positive definite)"
                                             : "");
        exit(EXIT_FAILURE);
    }
}

/* The species' index; a name not met before gets the next one. */
static int speciesOf(const char *name, const char *path, int line)
{
    if (name[0] == '\0' || strlen(name) >= NAME_SIZE || strchr(name, ',') != NULL) {
        failAtLine(path, line, "expected a species' name behind the measurements, and nothing else");
    }
    for (int species = 0; species < speciesCount; ++species) {
        if (strcmp(name, speciesNames[species]) == 0) {
            return species;
        }
    }
    if (speciesCount == SPECIES) {
        fprintf(stderr, "iris: %s, line %d: a fourth species, %s; the others, one of them perhaps misspelled, are", path,
                line, name);
        for (int species = 0; species < SPECIES; ++species) {
            fprintf(stderr, " %s (line %d)", speciesNames[species], speciesLines[species]);
        }
        fprintf(stderr, "\n");
        exit(EXIT_FAILURE);
    }
    strcpy(speciesNames[speciesCount], name);
    speciesLines[speciesCount] = line;
    return speciesCount++;
}

static Flower parseFlower(const char *text, const char *path, int line)
{
    Flower flower;
    for (int m = 0; m < MEASUREMENTS; ++m) {
        char *end;
        flower.measured[m] = strtod(text, &end);
        if (end == text || *end != ',' || !isfinite(flower.measured[m])) {
            failAtLine(path, line, "expected four numbers and a species, separated by commas");
        }
        text = end + 1;
    }
    flower.species = speciesOf(text, path, line);
    return flower;
}

static void readFlowers(const char *path)
{
    FILE *file = fopen(path, "r");
    if (file == NULL) {
        perror(path);
        exit(EXIT_FAILURE);
    }
    char text[LINE_SIZE];
    int line = 0;
    while (fgets(text, sizeof text, file) != NULL) {
        ++line;
        if (strchr(text, '\n') == NULL && !feof(file)) {
            failAtLine(path, line, "the line is too long");
        }
        text[strcspn(text, "\r\n")] = '\0';
        if (line == 1) {
            if (strcmp(text, header) != 0) {
                failAtLine(path, line, "expected the names of the columns");
            }
        } else if (text[0] != '\0') {
            if (flowerCount == MOST_FLOWERS) {
                failAtLine(path, line, "too many flowers");
            }
            flowers[flowerCount++] = parseFlower(text, path, line);
        }
    }
    if (ferror(file)) {
        perror(path);
        exit(EXIT_FAILURE);
    }
    fclose(file);
    if (speciesCount < SPECIES) {
        failAtLine(path, line, "the file ends before a third species");
    }
}

/* Mean and covariance (divisor n - 1) of one species' flowers. */
static void estimate(int species, double mean[MEASUREMENTS], double covariance[MEASUREMENTS][MEASUREMENTS])
{
    int members = 0;
    for (int f = 0; f < flowerCount; ++f) {
        members += flowers[f].species == species;
    }
    if (members < 2) {
        fprintf(stderr, "iris: a single flower of the species %s has no covariance\n", speciesNames[species]);
        exit(EXIT_FAILURE);
    }
    for (int i = 0; i < MEASUREMENTS; ++i) {
        mean[i] = 0;
        for (int f = 0; f < flowerCount; ++f) {
            mean[i] += flowers[f].species == species ? flowers[f].measured[i] / members : 0;
        }
    }
    for (int i = 0; i < MEASUREMENTS; ++i) {
        for (int j = 0; j < MEASUREMENTS; ++j) {
            double sum = 0;
            for (int f = 0; f < flowerCount; ++f) {
                if (flowers[f].species == species) {
                    sum += (flowers[f].measured[i] - mean[i]) * (flowers[f].measured[j] - mean[j]);
                }
            }
            covariance[i][j] = sum / (members - 1);
        }
    }
}

/* A way to solve with the three covariance matrices: factor all, then, for one species, the logarithm of the
 * determinant and the solutions for `count` right-hand sides. */
typedef struct {
    void (*factor)(double covariances[SPECIES][MEASUREMENTS][MEASUREMENTS]);
    double (*logDeterminant)(int species);
    void (*solve)(int species, double rightSides[][MEASUREMENTS], double solutions[][MEASUREMENTS], int count);
} Route;

/* The LU factors, side by side: row i of all matrices, then row i + 1 of all.
 * In an array, the library tests for matrix n's last pivot not the pivot itself but the element n matrix rows
 * (of MEASUREMENTS numbers) behind it. Side by side, that element lies in slot 2n, always one not written yet, so
 * it holds the 1 that factorByLU puts there and the test passes; hence the spare slots. logDeterminantByLU tests
 * the true last pivots. */
static double factors[MEASUREMENTS][2 * SPECIES][MEASUREMENTS];
static uint32_t pivots[SPECIES][MEASUREMENTS];

static void factorByLU(double covariances[SPECIES][MEASUREMENTS][MEASUREMENTS])
{
    for (int i = 0; i < MEASUREMENTS; ++i) {
        for (int slot = 0; slot < 2 * SPECIES; ++slot) {
            for (int j = 0; j < MEASUREMENTS; ++j) {
                factors[i][slot][j] = 1;
            }
        }
    }
    require(vonkLUDecomp_ma_64f_4x4(&covariances[0][0][0], sizeof covariances[0], sizeof covariances[0][0],
                                    &pivots[0][0], &factors[0][0][0], sizeof factors[0][0], sizeof factors[0],
                                    SPECIES),
            "factor the covariance matrices");
}

/* Rows are not moved by the factoring: row i of the triangle is the row pivots[i] of the factors. */
static double logDeterminantByLU(int species)
{
    double sum = 0;
    for (int i = 0; i < MEASUREMENTS; ++i) {
        double pivot = fabs(factors[pivots[species][i]][species][i]);
        require(pivot >= tolerance ? vonkOk : vonkErrSingular, "take a determinant's logarithm");
        sum += log(pivot);
    }
    return sum;
}

/* One matrix, many right-hand sides: the stride from matrix to matrix is there for the parameter's place only. */
static void solveByLU(int species, double rightSides[][MEASUREMENTS], double solutions[][MEASUREMENTS], int count)
{
    require(vonkLUBackSubst_mva_64f_4x4(&factors[0][species][0], 0, sizeof factors[0], pivots[species],
                                        &rightSides[0][0], sizeof rightSides[0], &solutions[0][0],
                                        sizeof solutions[0], (uint32_t)count),
            "solve for the Mahalanobis distances");
}

/* The Cholesky factors, one matrix after the other, with the reciprocals of their diagonals on the diagonal. Above
 * it nothing is written or read. */
static double lowerFactors[SPECIES][MEASUREMENTS][MEASUREMENTS];

static void factorByCholesky(double covariances[SPECIES][MEASUREMENTS][MEASUREMENTS])
{
    require(vonkCholeskyDecomp_ma_64f_4x4(&covariances[0][0][0], sizeof covariances[0], sizeof covariances[0][0],
                                          &lowerFactors[0][0][0], sizeof lowerFactors[0], sizeof lowerFactors[0][0],
                                          SPECIES),
            "factor the covariance matrices");
}

/* The decomposition takes any pivot above 0, so what rounding leaves of a zero is refused here. */
static double logDeterminantByCholesky(int species)
{
    double sum = 0;
    for (int i = 0; i < MEASUREMENTS; ++i) {
        double reciprocal = lowerFactors[species][i][i];
        double pivot = 1 / (reciprocal * reciprocal);
        require(pivot >= tolerance ? vonkOk : vonkErrSingular, "take a determinant's logarithm");
        sum += log(pivot);
    }
    return sum;
}

static void solveByCholesky(int species, double rightSides[][MEASUREMENTS], double solutions[][MEASUREMENTS],
                            int count)
{
    require(vonkCholeskyBackSubst_mva_64f_4x4(&lowerFactors[species][0][0], sizeof lowerFactors[species][0],
                                              &rightSides[0][0], sizeof rightSides[0], &solutions[0][0],
                                              sizeof solutions[0], count),
            "solve for the Mahalanobis distances");
}

static const Route byLU = {factorByLU, logDeterminantByLU, solveByLU};
static const Route byCholesky = {factorByCholesky, logDeterminantByCholesky, solveByCholesky};

/* scores[f] = log of the species' Gaussian density at flower f plus log of its prior, but for a common constant. */
static void scoreFlowers(const Route *route, int species, const double mean[MEASUREMENTS], double scores[MOST_FLOWERS])
{
    static double differences[MOST_FLOWERS][MEASUREMENTS];
    static double solutions[MOST_FLOWERS][MEASUREMENTS];
    for (int f = 0; f < flowerCount; ++f) {
        for (int i = 0; i < MEASUREMENTS; ++i) {
            differences[f][i] = flowers[f].measured[i] - mean[i];
        }
    }
    route->solve(species, differences, solutions, flowerCount);
    double constant = -0.5 * route->logDeterminant(species) + log(1.0 / SPECIES);
    for (int f = 0; f < flowerCount; ++f) {
        double squaredDistance = 0;
        for (int i = 0; i < MEASUREMENTS; ++i) {
            squaredDistance += differences[f][i] * solutions[f][i];
        }
        scores[f] = constant - 0.5 * squaredDistance;
    }
}

static int bestSpecies(double scores[SPECIES][MOST_FLOWERS], int flower)
{
    int best = 0;
    for (int species = 1; species < SPECIES; ++species) {
        if (scores[species][flower] > scores[best][flower]) {
            best = species;
        }
    }
    return best;
}

/* How probable the species is, given the flower and that it belongs to one of the three. */
static double probability(double scores[SPECIES][MOST_FLOWERS], int flower, int species)
{
    double sum = 0;
    for (int other = 0; other < SPECIES; ++other) {
        sum += exp(scores[other][flower] - scores[species][flower]);
    }
    return 1 / sum;
}

static void printReport(double scores[SPECIES][MOST_FLOWERS])
{
    int confusion[SPECIES][SPECIES] = {{0}};
    int misplaced = 0;
    for (int f = 0; f < flowerCount; ++f) {
        int found = bestSpecies(scores, f);
        ++confusion[flowers[f].species][found];
        misplaced += found != flowers[f].species;
    }

    printf("%-14s", "classified as");
    for (int found = 0; found < SPECIES; ++found) {
        printf("%14s", speciesNames[found]);
    }
    for (int species = 0; species < SPECIES; ++species) {
        printf("\n%-14s", speciesNames[species]);
        for (int found = 0; found < SPECIES; ++found) {
            printf("%14d", confusion[species][found]);
        }
    }
    printf("\n\n%d of %d flowers on the wrong side\n", misplaced, flowerCount);
    for (int f = 0; f < flowerCount; ++f) {
        int found = bestSpecies(scores, f);
        if (found != flowers[f].species) {
            printf("flower %3d: %s, classified as %s with probability %.4f\n", f + 1,
                   speciesNames[flowers[f].species], speciesNames[found], probability(scores, f, found));
        }
    }
}

int main(int argc, char **argv)
{
    static double means[SPECIES][MEASUREMENTS];
    static double covariances[SPECIES][MEASUREMENTS][MEASUREMENTS];
    static double scores[SPECIES][MOST_FLOWERS];
    const Route *route = &byLU;
    if (argc > 1 && strcmp(argv[1], "--cholesky") == 0) {
        route = &byCholesky;
        --argc;
        ++argv;
    }
    const int asksForHelp = argc == 2 && strcmp(argv[1], "--help") == 0;
    if (asksForHelp || argc != 2 || argv[1][0] == '-') {
        fprintf(asksForHelp ? stdout : stderr, "usage: iris [--cholesky] file.csv\n");
        return asksForHelp ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    readFlowers(argv[1]);
    for (int species = 0; species < SPECIES; ++species) {
        estimate(species, means[species], covariances[species]);
    }
    route->factor(covariances);
    for (int species = 0; species < SPECIES; ++species) {
        scoreFlowers(route, species, means[species], scores[species]);
    }
    printReport(scores);
    return fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
