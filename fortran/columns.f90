! Columns of data, in one call each.
module chartxml_columns
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use, intrinsic :: iso_fortran_env, only: int32, int64, real32, real64
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_columns
  implicit none
  private
  public :: load

  !> Stores a column of a variable, or a column of each of several variables: the values from
  !> row `first` (1) on. Rows that are not there yet are added. Texts lose the blanks at their
  !> ends and become numbers where they read as such.
  interface load
    module procedure load_real64, load_real32, load_int32, load_int64, load_texts
    module procedure load_table_real64, load_table_real32
  end interface

contains

  subroutine load_real64(chart, variable, values, first, stat, errmsg)
    class(*), intent(in) :: chart, variable
    real(real64), intent(in) :: values(:)
    class(*), intent(in), optional :: first
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call take_column(this, chart, variable, first, stat)
    if (this%sound) this%result = chartxml_loadnumbers(this%i(1), this%i(2), this%i(3), values, &
      size(values, kind=c_int64_t))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  subroutine load_real32(chart, variable, values, first, stat, errmsg)
    class(*), intent(in) :: chart, variable
    real(real32), intent(in) :: values(:)
    class(*), intent(in), optional :: first
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg

    call load_real64(chart, variable, real(values, real64), first, stat, errmsg)
  end subroutine

  subroutine load_int32(chart, variable, values, first, stat, errmsg)
    class(*), intent(in) :: chart, variable
    integer(int32), intent(in) :: values(:)
    class(*), intent(in), optional :: first
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg

    call load_real64(chart, variable, real(values, real64), first, stat, errmsg)
  end subroutine

  subroutine load_int64(chart, variable, values, first, stat, errmsg)
    class(*), intent(in) :: chart, variable
    integer(int64), intent(in) :: values(:)
    class(*), intent(in), optional :: first
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg

    call load_real64(chart, variable, real(values, real64), first, stat, errmsg)
  end subroutine

  subroutine load_texts(chart, variable, values, first, stat, errmsg)
    class(*), intent(in) :: chart, variable
    character(*), intent(in) :: values(:)
    class(*), intent(in), optional :: first
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call take_column(this, chart, variable, first, stat)
    if (this%sound) this%result = chartxml_loadtexts(this%i(1), this%i(2), this%i(3), values, &
      len(values, c_int64_t), size(values, kind=c_int64_t))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> A row of the table is a row of the data, a column of it belongs to a variable.
  subroutine load_table_real64(chart, variables, values, first, stat, errmsg)
    class(*), intent(in) :: chart, variables(:)
    real(real64), intent(in) :: values(:, :)
    class(*), intent(in), optional :: first
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this
    integer :: column

    call take_column(this, chart, 0, first, stat)
    call this%take_list('variables', variables)
    if (size(this%list) /= size(values, 2)) call this%refuse('not as many columns as variables')
    do column = 1, size(this%list)
      if (this%sound) this%result = chartxml_loadnumbers(this%i(1), this%list(column), &
        this%i(3), values(:, column), size(values, 1, c_int64_t))
      this%sound = this%sound .and. this%result >= 0
    end do
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  subroutine load_table_real32(chart, variables, values, first, stat, errmsg)
    class(*), intent(in) :: chart, variables(:)
    real(real32), intent(in) :: values(:, :)
    class(*), intent(in), optional :: first
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg

    call load_table_real64(chart, variables, real(values, real64), first, stat, errmsg)
  end subroutine

  !> The arguments that all columns have.
  subroutine take_column(this, chart, variable, first, stat)
    type(entry_call), intent(inout) :: this
    class(*), intent(in) :: chart, variable
    class(*), intent(in), optional :: first
    class(*), intent(inout), optional :: stat

    call this%start('load', stat)
    this%i(3) = 1
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take(3, 'first', first)
  end subroutine

end module
