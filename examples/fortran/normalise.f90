! Normalises many vectors. A number for each vector: a matrix of 3 rows and 1 column by a vector of 1 element.
program normalise
    use vonkk3
    implicit none
    integer, parameter :: count = 1000
    real, target :: v(3, count), unit(3, count), factor(count)
    real :: length(count)
    real, pointer :: columns(:, :, :), factors(:, :)
    call random_number(v)
    v(:, 1) = 0

    call vonk_norm(v, length)
    factor = merge(1 / max(length, tiny(length)), 0., length > 0)
    columns(1:3, 1:1, 1:count) => v
    factors(1:1, 1:count) => factor
    call vonk_multiply(columns, factors, unit)

    call vonk_norm(unit, length)
    if (length(1) /= 0 .or. maxval(abs(length(2:) - 1)) > 1e-6) error stop 'lengths'
end program
