! Status values in words, and the version record.
program version_test
    use, intrinsic :: iso_c_binding, only: c_f_pointer
    use vonkk3
    implicit none
    type(VonkLibVersion), pointer :: version
    call c_f_pointer(vonkGetLibVersion(), version)
    if (version%versionMajor /= 4 .or. version%versionMinor /= 1) error stop 'version'
    if (index(vonkText(version%versionText), '4.1') == 0) error stop 'the text of the version'
    if (vonkText(version%libraryName) == '') error stop 'name'
    if (vonkText(version%buildDateText) == '') error stop 'date'
    if (vonkStatusText(vonkOk) /= 'done') error stop 'a status in words'
    if (vonkStatusText(5) /= 'not a status of vonkk3') error stop 'no status in words'
    if (index(vonkStatusText(vonkErrNotPosDef), 'positive definite') == 0) error stop 'not positive definite'
    print '(3a)', vonkText(version%libraryName), ' ', vonkText(version%versionText)
end program
