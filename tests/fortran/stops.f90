! What fails and is not asked about ends the program, with the name of the operation and the status in words.
program stops
    use vonkk3
    implicit none
    real :: a(3, 3, 2), b(3, 2), x(3, 2)
    a = 0
    b = 1
    call vonk_solve(a, b, x)
    print *, 'it went on'
end program
