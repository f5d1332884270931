! Texts that are put together in several steps, texts that come back, and display formats.
module chartxml_strings
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use, intrinsic :: iso_fortran_env, only: int32, int64
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_further, only: chartxml_gettext, chartxml_getxml
  use chartxml_raw_texts
  implicit none
  private
  public :: composite_of, list_of, number_string, text_of, document_of
  public :: packed_format, type_of_format

  ! Type codes of display formats.
  integer, parameter, public :: format_text = 1, format_dollar = 4, format_plain = 5
  integer, parameter, public :: format_percent = 31

  integer(c_int64_t), parameter :: ignored = 0

  !> A display format of a type, width and decimals, packed as the library takes it.
  interface packed_format
    module procedure packed_int32, packed_int64, packed_mixed
  end interface

  !> The type code of a packed display format.
  interface type_of_format
    module procedure type_int32, type_int64
  end interface

contains

  !> The pattern, or the text of its key in the string table, with "^1", "^2" ... replaced by
  !> the parameters, which are string handles. Gives a string handle, or -1.
  function composite_of(pattern, parameters, stat, errmsg) result(string)
    character(*), intent(in) :: pattern
    class(*), intent(in) :: parameters(:)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: string
    type(entry_call) :: this

    call this%start('composite_of', stat)
    call this%take_list('parameters', parameters)
    if (this%sound) this%result = assembled(pattern, this%list, repeated=.false.)
    call this%finish(stat=stat, errmsg=errmsg)
    string = int(this%result)
  end function

  !> The pattern with its repeat list filled with the items: '[%1:, ^1:]1' puts a comma before
  !> each but the first. Gives a string handle, or -1.
  function list_of(pattern, items, stat, errmsg) result(string)
    character(*), intent(in) :: pattern
    class(*), intent(in) :: items(:)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: string
    type(entry_call) :: this

    call this%start('list_of', stat)
    call this%take_list('items', items)
    if (this%sound) this%result = assembled(pattern, this%list, repeated=.true.)
    call this%finish(stat=stat, errmsg=errmsg)
    string = int(this%result)
  end function

  !> A composite with its parameters; -1 when one of the steps was refused.
  function assembled(pattern, parameters, repeated) result(string)
    character(*), intent(in) :: pattern
    integer(c_int64_t), intent(in) :: parameters(:)
    logical, intent(in) :: repeated
    integer(c_int64_t) :: string, status
    integer :: i

    string = cx_compositestring(ignored, pattern, len(pattern, c_int64_t))
    status = string
    if (repeated .and. status >= 0) status = cx_beginrepeat(ignored, string)
    do i = 1, size(parameters)
      if (status >= 0) status = cx_addparameter(ignored, string, parameters(i))
    end do
    if (repeated .and. status >= 0) status = cx_endrepeat(ignored, string)
    if (status >= 0) status = cx_endcompositestring(ignored, string)
    if (status < 0) string = -1
  end function

  !> A number 8 places wide with that many decimals, in the plain format or another. Gives a
  !> string handle, or -1 for a missing number.
  function number_string(number, decimals, type, stat, errmsg) result(string)
    class(*), intent(in) :: number, decimals
    class(*), intent(in), optional :: type
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: string
    type(entry_call) :: this

    call this%start('number_string', stat, answers=.true.)
    call this%take_real(1, 'number', number)
    call this%take(1, 'decimals', decimals)
    this%i(2) = format_plain
    call this%take(2, 'type', type)
    if (this%sound) this%result = cx_lrvalueasstring(this%r(1), &
      int(packed_format(this%i(2), 8_c_int64_t, this%i(1)), c_int64_t))
    call this%finish(stat=stat, errmsg=errmsg)
    string = int(this%result)
  end function

  !> The text behind a string handle, in UTF-8.
  function text_of(string, stat, errmsg) result(text)
    class(*), intent(in) :: string
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    character(:), allocatable :: text
    type(entry_call) :: this

    call this%start('text_of', stat)
    call this%take_string(1, 'string', string)
    allocate (character(0) :: text)
    if (this%sound) this%result = chartxml_gettext(this%i(1), text, 0_c_int64_t)
    if (this%result > 0) then
      deallocate (text)
      allocate (character(this%result) :: text)
      this%result = chartxml_gettext(this%i(1), text, this%result)
    end if
    call this%finish(stat=stat, errmsg=errmsg)
  end function

  !> The chart's document as it is by now.
  function document_of(chart, stat, errmsg) result(document)
    class(*), intent(in) :: chart
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    character(:), allocatable :: document
    type(entry_call) :: this

    call this%start('document_of', stat)
    call this%take(1, 'chart', chart)
    allocate (character(0) :: document)
    if (this%sound) this%result = chartxml_getxml(this%i(1), document, 0_c_int64_t)
    if (this%result > 0) then
      deallocate (document)
      allocate (character(this%result) :: document)
      this%result = chartxml_getxml(this%i(1), document, this%result)
    end if
    call this%finish(stat=stat, errmsg=errmsg)
  end function

  ! Display formats

  pure integer function packed_int32(type, width, decimals) result(format)
    integer(int32), intent(in) :: type, width, decimals

    format = ior(ishft(type, 16), ior(ishft(width, 8), decimals))
  end function

  pure integer function packed_int64(type, width, decimals) result(format)
    integer(int64), intent(in) :: type, width, decimals

    format = packed_int32(int(type), int(width), int(decimals))
  end function

  !> A named type with numbers of 64 bits.
  pure integer function packed_mixed(type, width, decimals) result(format)
    integer(int32), intent(in) :: type
    integer(int64), intent(in) :: width, decimals

    format = packed_int32(type, int(width), int(decimals))
  end function

  pure integer function type_int32(format) result(type)
    integer(int32), intent(in) :: format

    type = ishft(format, -16)
  end function

  pure integer function type_int64(format) result(type)
    integer(int64), intent(in) :: format

    type = type_int32(int(format))
  end function

end module
