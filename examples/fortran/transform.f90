! Transforms many points by one matrix, and many matrices by one.
program transform
    use vonkk3
    implicit none
    integer, parameter :: count = 1000
    real :: rotation(3, 3), points(3, count), moved(3, count), frames(3, 3, count), turned(3, 3, count)
    rotation = reshape([0., 1., 0., -1., 0., 0., 0., 0., 1.], [3, 3]) ! a quarter turn about z, by columns
    call random_number(points)
    call random_number(frames)

    call vonk_multiply(rotation, points, moved)  ! one matrix, an array of vectors
    call vonk_multiply(rotation, frames, turned) ! one matrix, an array of matrices

    if (any(moved(2, :) /= points(1, :)) .or. any(moved(1, :) /= -points(2, :))) error stop 'points'
    if (any(turned(2, :, :) /= frames(1, :, :))) error stop 'frames'

    ! Sections are taken as they lie: every second point, last first, into the first half.
    call vonk_multiply(rotation, points(:, count:1:-2), moved(:, :count / 2))
    if (moved(2, 1) /= points(1, count)) error stop 'a section'
end program
