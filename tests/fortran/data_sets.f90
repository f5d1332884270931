! The data sets of module korva.
!
! usage: data_sets <the penguins' data package>
program data_sets
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use checks
  use korva
  implicit none

  type(data_set) :: penguins
  character(256) :: path

  call get_command_argument(1, path)
  call test_refusals
  call test_rows
  call test_closing
  call test_number_settings
  call finish

contains

  subroutine test_refusals
    call expect('a missing data set is refused', .not. penguins%open('no such folder'))
    call expect_error('with its reason', 'no such folder: No such file or directory')
    call expect('nothing is counted in a closed one', penguins%row_count() == -1)
    call expect_error('and that is told', 'not an open data set')
  end subroutine

  subroutine test_rows
    integer :: columns(2)
    real(dp) :: cells(3)

    call expect('a data package opens', penguins%open(trim(path)))
    call expect('rows are counted', penguins%row_count() == 344)
    call expect('columns are counted', penguins%column_count() == 7)
    columns = [penguins%find_column('species'), penguins%find_column('body_mass_g')]
    call expect('columns are found by name, from 1', all(columns == [1, 6]))
    call expect('an unknown column is not', penguins%find_column('Species ') == -1)
    call expect_error('its name is told', 'no column has the name "Species "')

    call expect('variables are named', penguins%use_variables(columns))
    call expect('a text takes a cell for eight bytes', penguins%cell_count() == 3)
    call expect('a row is read', penguins%read_row(1, cells))
    call expect('its text is filled up with blanks', &
      text_of_cells(cells(:2)), 'Adelie'//repeat(' ', 10))
    call expect('its number is there', nint(cells(3)) == 3750)
    call expect('the fourth row is read', penguins%read_row(4, cells))
    call expect('where the number is missing', cells(3) <= missing_value())

    call expect('a row beyond the last is refused', .not. penguins%read_row(345, cells))
    call expect_error('with its reason', 'no row 345: the data set has 344 rows')
    call expect('too little room is refused', .not. penguins%read_row(1, cells(:2)))
    call expect_error('with its reason', 'room for 2 cells: a row takes 3')
    call expect('a column that is not there is refused', .not. penguins%use_variables([8]))
    call expect_error('with its reason', 'no column 8: the data set has 7 columns')
    call expect('an empty list takes every column', penguins%use_variables([integer ::]))
    call expect('which are seven', penguins%cell_count() > 7)
  end subroutine

  subroutine test_closing
    type(data_set) :: copy

    copy = penguins
    call penguins%close()
    call penguins%close()
    call expect('a copy does not outlive it', copy%row_count() == -1)
    call expect_error('and that is told', 'not an open data set')
    call copy%close()
  end subroutine

  subroutine test_number_settings
    call set_grouping(.true.)
    call set_grouping(.false.)
    call expect('integer digits are set', set_integer_digits(1))
    call expect('too many are refused', .not. set_integer_digits(41))
    call expect_error('with the reason', 'at least 41 integer digits: it can be 0 to 40')
    call expect('signs are set', set_locale(',', ''))
    call clear_locale
    call expect('signs of the language come back', set_locale('', ''))
    call expect('a currency is set', set_currency(4, '', ' kr', '-', ''))
    call expect('a sixth is refused', .not. set_currency(5, '', ' kr', '-', ''))
    call expect_error('with the reason', 'custom currency 5 out of range (0-4)')
  end subroutine

end program
