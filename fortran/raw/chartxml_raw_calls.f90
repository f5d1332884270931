! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Beyond the procedures' own: the messages of one call: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_calls
  use, intrinsic :: iso_c_binding, only: c_char, c_int64_t
  implicit none
  private
  public :: chartxml_begincall, chartxml_refuse, chartxml_endcall

  interface

    !> Holds back the messages of what follows. Returns 0.
    integer(c_int64_t) function chartxml_begincall() bind(C, name="chartxml_begincall_")
      import
    end function

    !> Reports a message of the caller. Returns -1.
    integer(c_int64_t) function chartxml_refuse(text, text_length) &
        bind(C, name="chartxml_refuse_")
      import
      character(kind=c_char), intent(in) :: text(*)
      integer(c_int64_t), intent(in) :: text_length
    end function

    !> Ends holding messages back. Those of a call that was refused go to the buffer, which is
    !> filled up with blanks; all but those that are wanted go on, with the name of the call before
    !> them. Returns 1 when the call was refused, else 0.
    integer(c_int64_t) function chartxml_endcall(call_name, call_name_length, failed, &
        may_be_silent, wanted, buffer, buffer_capacity) bind(C, name="chartxml_endcall_")
      import
      character(kind=c_char), intent(in) :: call_name(*)
      integer(c_int64_t), intent(in) :: call_name_length, failed, may_be_silent, wanted
      character(kind=c_char), intent(inout) :: buffer(*)
      integer(c_int64_t), intent(in) :: buffer_capacity
    end function

  end interface

end module
