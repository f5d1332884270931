! The data sets of a procedure, and the settings of its run.
!
! The host keeps a log of what went wrong and writes it to standard error; what
! fails here answers .false., or -1 where it answers a number, and leaves its
! reason there (see take_error). Rows, columns and variables count from 1.
module korva
  use, intrinsic :: iso_c_binding, only: c_char, c_double, c_int64_t, c_null_ptr, c_ptr
  implicit none
  private
  public :: data_set, text_of_cells, missing_value, take_error
  public :: set_output, set_language, set_bootstrapping
  public :: set_grouping, set_integer_digits, set_locale, clear_locale, set_currency

  !> Bytes of a text that one cell holds.
  integer, parameter, public :: bytes_per_cell = 8

  !> A data set, once it is open. Copies name the same data set; close it once.
  type :: data_set
    !> What the chart library calls the procedure's dictionary.
    type(c_ptr) :: dictionary = c_null_ptr
  contains
    procedure :: open => open_data_set
    procedure :: close => close_data_set
    procedure :: row_count
    procedure :: column_count
    procedure :: find_column
    procedure :: use_variables
    procedure :: split_by
    procedure :: cell_count
    procedure :: read_row
  end type

  ! The host's calls, as include/host/Korva.h has them.
  interface
    integer(c_int64_t) function korva_open(path, length, dictionary) bind(C, name="korva_open_")
      import
      character(kind=c_char), intent(in) :: path(*)
      integer(c_int64_t), intent(in) :: length
      type(c_ptr), intent(inout) :: dictionary
    end function

    integer(c_int64_t) function korva_close(dictionary) bind(C, name="korva_close_")
      import
      type(c_ptr), intent(inout) :: dictionary
    end function

    integer(c_int64_t) function korva_rowcount(dictionary) bind(C, name="korva_rowcount_")
      import
      type(c_ptr), intent(in) :: dictionary
    end function

    integer(c_int64_t) function korva_columncount(dictionary) bind(C, name="korva_columncount_")
      import
      type(c_ptr), intent(in) :: dictionary
    end function

    integer(c_int64_t) function korva_findcolumn(dictionary, name, length) &
        bind(C, name="korva_findcolumn_")
      import
      type(c_ptr), intent(in) :: dictionary
      character(kind=c_char), intent(in) :: name(*)
      integer(c_int64_t), intent(in) :: length
    end function

    integer(c_int64_t) function korva_usevariables(dictionary, columns, count) &
        bind(C, name="korva_usevariables_")
      import
      type(c_ptr), intent(in) :: dictionary
      integer(c_int64_t), intent(in) :: columns(*), count
    end function

    integer(c_int64_t) function korva_splitby(dictionary, columns, count) &
        bind(C, name="korva_splitby_")
      import
      type(c_ptr), intent(in) :: dictionary
      integer(c_int64_t), intent(in) :: columns(*), count
    end function

    integer(c_int64_t) function korva_cellcount(dictionary) bind(C, name="korva_cellcount_")
      import
      type(c_ptr), intent(in) :: dictionary
    end function

    integer(c_int64_t) function korva_readrow(dictionary, row, cells, capacity) &
        bind(C, name="korva_readrow_")
      import
      type(c_ptr), intent(in) :: dictionary
      integer(c_int64_t), intent(in) :: row
      real(c_double), intent(inout) :: cells(*)
      integer(c_int64_t), intent(in) :: capacity
    end function

    !> The system-missing value: what a missing number is in a row's cells.
    real(c_double) function missing_value() bind(C, name="korva_missing_")
      import
    end function

    integer(c_int64_t) function korva_setoutput(folder, length) bind(C, name="korva_setoutput_")
      import
      character(kind=c_char), intent(in) :: folder(*)
      integer(c_int64_t), intent(in) :: length
    end function

    integer(c_int64_t) function korva_setlanguage(code, length) bind(C, name="korva_setlanguage_")
      import
      character(kind=c_char), intent(in) :: code(*)
      integer(c_int64_t), intent(in) :: length
    end function

    integer(c_int64_t) function korva_setbootstrapping(on) bind(C, name="korva_setbootstrapping_")
      import
      integer(c_int64_t), intent(in) :: on
    end function

    integer(c_int64_t) function korva_setgrouping(on) bind(C, name="korva_setgrouping_")
      import
      integer(c_int64_t), intent(in) :: on
    end function

    integer(c_int64_t) function korva_setintegerdigits(digits) &
        bind(C, name="korva_setintegerdigits_")
      import
      integer(c_int64_t), intent(in) :: digits
    end function

    integer(c_int64_t) function korva_setlocale(decimal, decimal_length, grouping, &
        grouping_length) bind(C, name="korva_setlocale_")
      import
      character(kind=c_char), intent(in) :: decimal(*), grouping(*)
      integer(c_int64_t), intent(in) :: decimal_length, grouping_length
    end function

    integer(c_int64_t) function korva_clearlocale() bind(C, name="korva_clearlocale_")
      import
    end function

    integer(c_int64_t) function korva_setcurrency(number, prefix, prefix_length, suffix, &
        suffix_length, negative_prefix, negative_prefix_length, negative_suffix, &
        negative_suffix_length) bind(C, name="korva_setcurrency_")
      import
      integer(c_int64_t), intent(in) :: number
      character(kind=c_char), intent(in) :: prefix(*), suffix(*)
      character(kind=c_char), intent(in) :: negative_prefix(*), negative_suffix(*)
      integer(c_int64_t), intent(in) :: prefix_length, suffix_length
      integer(c_int64_t), intent(in) :: negative_prefix_length, negative_suffix_length
    end function

    integer(c_int64_t) function korva_geterror(text, capacity, length) &
        bind(C, name="korva_geterror_")
      import
      character(kind=c_char), intent(inout) :: text(*)
      integer(c_int64_t), intent(in) :: capacity
      integer(c_int64_t), intent(inout) :: length
    end function
  end interface

contains

  ! Data sets

  !> Opens a data package (its folder or its datapackage.json) or a CSV file; the
  !> data set that was open here is closed first.
  logical function open_data_set(self, path) result(opened)
    class(data_set), intent(inout) :: self
    character(*), intent(in) :: path

    call self%close()
    opened = korva_open(path, length_of(path), self%dictionary) >= 0
  end function

  !> Closes the data set; one that is not open is left alone.
  subroutine close_data_set(self)
    class(data_set), intent(inout) :: self
    integer(c_int64_t) :: status

    status = korva_close(self%dictionary)
  end subroutine

  integer function row_count(self)
    class(data_set), intent(in) :: self

    row_count = int(korva_rowcount(self%dictionary))
  end function

  integer function column_count(self)
    class(data_set), intent(in) :: self

    column_count = int(korva_columncount(self%dictionary))
  end function

  !> The column of that name.
  integer function find_column(self, name)
    class(data_set), intent(in) :: self
    character(*), intent(in) :: name

    find_column = int(korva_findcolumn(self%dictionary, name, length_of(name)))
  end function

  !> Names the variables of the run: variable v is columns(v). An empty list takes
  !> every column, as after opening.
  logical function use_variables(self, columns) result(done)
    class(data_set), intent(in) :: self
    integer, intent(in) :: columns(:)

    done = korva_usevariables(self%dictionary, int(columns, c_int64_t), &
      size(columns, kind=c_int64_t)) >= 0
  end function

  !> Names the columns that split the data into groups; an empty list ends splitting.
  logical function split_by(self, columns) result(done)
    class(data_set), intent(in) :: self
    integer, intent(in) :: columns(:)

    done = korva_splitby(self%dictionary, int(columns, c_int64_t), &
      size(columns, kind=c_int64_t)) >= 0
  end function

  !> Cells of one row of the run's variables: one for a number, one for every
  !> bytes_per_cell bytes of a text.
  integer function cell_count(self)
    class(data_set), intent(in) :: self

    cell_count = int(korva_cellcount(self%dictionary))
  end function

  !> Reads one row of the run's variables; `cells` needs room for cell_count().
  logical function read_row(self, row, cells) result(done)
    class(data_set), intent(in) :: self
    integer, intent(in) :: row
    real(c_double), contiguous, intent(inout) :: cells(:)

    done = korva_readrow(self%dictionary, int(row, c_int64_t), cells, &
      size(cells, kind=c_int64_t)) >= 0
  end function

  !> The text that a run of cells holds, with the blanks that fill it up.
  pure function text_of_cells(cells) result(text)
    real(c_double), intent(in) :: cells(:)
    character(bytes_per_cell*size(cells)) :: text

    text = transfer(cells, text)
  end function

  ! Settings

  !> The folder for charts; an empty one goes back to the default.
  logical function set_output(folder) result(done)
    character(*), intent(in) :: folder

    done = korva_setoutput(folder, length_of(folder)) >= 0
  end function

  !> The output language, such as "en", "de" or "ja"; set it before the first chart.
  logical function set_language(code) result(done)
    character(*), intent(in) :: code

    done = korva_setlanguage(code, length_of(code)) >= 0
  end function

  !> While a bootstrap run is in progress, charts are built but not sent.
  subroutine set_bootstrapping(on)
    logical, intent(in) :: on
    integer(c_int64_t) :: status

    status = korva_setbootstrapping(merge(1_c_int64_t, 0_c_int64_t, on))
  end subroutine

  ! How display texts write numbers

  !> Whether labels of values have their digits grouped; at first they have not.
  subroutine set_grouping(on)
    logical, intent(in) :: on
    integer(c_int64_t) :: status

    status = korva_setgrouping(merge(1_c_int64_t, 0_c_int64_t, on))
  end subroutine

  !> The digits before the decimal sign at least, 0 to 40; at first 1.
  logical function set_integer_digits(digits) result(done)
    integer, intent(in) :: digits

    done = korva_setintegerdigits(int(digits, c_int64_t)) >= 0
  end function

  !> The signs of numbers, one character each; the grouping sign may be empty. Both
  !> empty: those of the output language, as at first.
  logical function set_locale(decimal, grouping) result(done)
    character(*), intent(in) :: decimal, grouping

    done = korva_setlocale(decimal, length_of(decimal), grouping, length_of(grouping)) >= 0
  end function

  !> No locale at all: a point, and a comma where digits are grouped.
  subroutine clear_locale()
    integer(c_int64_t) :: status

    status = korva_clearlocale()
  end subroutine

  !> What stands around amounts of custom currency 0 to 4, of display format 33 to 37;
  !> around one below zero the negative texts stand outside of the others. Blanks count.
  logical function set_currency(number, prefix, suffix, negative_prefix, negative_suffix) &
      result(done)
    integer, intent(in) :: number
    character(*), intent(in) :: prefix, suffix, negative_prefix, negative_suffix

    done = korva_setcurrency(int(number, c_int64_t), prefix, length_of(prefix), &
      suffix, length_of(suffix), negative_prefix, length_of(negative_prefix), &
      negative_suffix, length_of(negative_suffix)) >= 0
  end function

  ! Errors

  !> Takes the oldest error that was not taken yet; .false. when there is none.
  logical function take_error(message) result(taken)
    character(:), allocatable, intent(out) :: message
    integer(c_int64_t), parameter :: capacity = 4096
    character(capacity) :: buffer
    integer(c_int64_t) :: length

    taken = korva_geterror(buffer, capacity, length) > 0
    if (taken) message = buffer(:length)
  end function

  pure integer(c_int64_t) function length_of(text)
    character(*), intent(in) :: text

    length_of = len(text, kind=c_int64_t)
  end function

end module
