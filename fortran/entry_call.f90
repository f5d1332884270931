! One call of an entry point, from arguments as Fortran has them to stat= and errmsg=.
module chartxml_entry_call
  use, intrinsic :: iso_c_binding, only: c_bool, c_double, c_int64_t, c_null_ptr, c_ptr
  use, intrinsic :: iso_fortran_env, only: int8, int16, int32, int64, real32, real64
  use chartxml_raw_calls
  use chartxml_raw_texts, only: cx_string
  implicit none
  private
  public :: entry_call, stop_when_refused

  integer, parameter :: most_integers = 20, most_reals = 4, most_outputs = 4
  integer, parameter :: longest_name = 48
  integer(c_int64_t), parameter :: absent = -1, not_written = -huge(1_c_int64_t)

  !> A call that is being made: the arguments taken, then the result. An argument that is not of
  !> its type is reported, and the entry point then not called.
  type :: entry_call
    integer(c_int64_t) :: i(most_integers) = absent
    real(c_double) :: r(most_reals) = 0
    integer(c_int64_t) :: o(most_outputs) = not_written
    integer(c_int64_t), allocatable :: list(:)
    logical :: sound = .true.
    integer(c_int64_t) :: result = -1
    character(longest_name), private :: name
    logical, private :: takes_stat = .false., answers = .false., any_result = .false.
  contains
    procedure :: start
    procedure :: take
    procedure :: take_string
    procedure :: take_logical
    procedure :: take_real
    procedure :: take_list
    procedure :: take_output
    procedure :: refuse
    procedure, nopass :: address
    procedure :: give
    procedure :: finish
  end type

  logical :: stopping = .false.

contains

  !> Whether a call without stat= that is refused stops the program, with exit code 1, after its
  !> message; at first it does not.
  subroutine stop_when_refused(on)
    logical, intent(in) :: on

    stopping = on
  end subroutine

  !> `answers`: a negative result is an answer unless something was reported. `any_result`: so is
  !> any result.
  subroutine start(self, name, stat, answers, any_result)
    class(entry_call), intent(inout) :: self
    character(*), intent(in) :: name
    class(*), intent(in), optional :: stat
    logical, intent(in), optional :: answers, any_result
    integer(c_int64_t) :: status

    self%name = name
    if (present(answers)) self%answers = answers
    if (present(any_result)) self%any_result = any_result
    status = chartxml_begincall()
    call self%take_output(0, 'stat', stat)
    self%takes_stat = present(stat) .and. self%sound
  end subroutine

  ! Arguments

  subroutine take(self, place, name, given)
    class(entry_call), intent(inout) :: self
    integer, intent(in) :: place
    character(*), intent(in) :: name
    class(*), intent(in), optional :: given

    if (.not. present(given)) return
    select type (given)
    type is (integer(int32))
      self%i(place) = given
    type is (integer(int64))
      self%i(place) = given
    type is (integer(int16))
      self%i(place) = given
    type is (integer(int8))
      self%i(place) = given
    class default
      call self%refuse(name//' is no integer')
    end select
  end subroutine

  !> A string handle, or the text itself, with all its blanks.
  subroutine take_string(self, place, name, given)
    class(entry_call), intent(inout) :: self
    integer, intent(in) :: place
    character(*), intent(in) :: name
    class(*), intent(in), optional :: given

    if (.not. present(given)) return
    select type (given)
    type is (character(*))
      self%i(place) = cx_string(0_c_int64_t, given, len(given, c_int64_t))
    class default
      call self%take(place, name, given)
    end select
  end subroutine

  !> What is not given is false.
  subroutine take_logical(self, place, name, given)
    class(entry_call), intent(inout) :: self
    integer, intent(in) :: place
    character(*), intent(in) :: name
    class(*), intent(in), optional :: given

    self%i(place) = 0
    if (.not. present(given)) return
    select type (given)
    type is (logical(int32))
      self%i(place) = number(given)
    type is (logical(int64))
      self%i(place) = number(logical(given, int32))
    type is (logical(c_bool))
      self%i(place) = number(logical(given, int32))
    class default
      call self%refuse(name//' is no logical')
    end select
  end subroutine

  subroutine take_real(self, place, name, given)
    class(entry_call), intent(inout) :: self
    integer, intent(in) :: place
    character(*), intent(in) :: name
    class(*), intent(in) :: given

    select type (given)
    type is (real(real64))
      self%r(place) = given
    type is (real(real32))
      self%r(place) = given
    type is (integer(int32))
      self%r(place) = given
    type is (integer(int64))
      self%r(place) = real(given, c_double)
    class default
      call self%refuse(name//' is no number')
    end select
  end subroutine

  subroutine take_list(self, name, given)
    class(entry_call), intent(inout) :: self
    character(*), intent(in) :: name
    class(*), intent(in) :: given(:)

    allocate (self%list(size(given)), source=absent)
    select type (given)
    type is (integer(int32))
      self%list = given
    type is (integer(int64))
      self%list = given
    class default
      call self%refuse(name//' are no integers')
    end select
  end subroutine

  !> Looks whether an output can take an integer.
  subroutine take_output(self, place, name, given)
    class(entry_call), intent(inout) :: self
    integer, intent(in) :: place
    character(*), intent(in) :: name
    class(*), intent(in), optional :: given

    if (place > 0) self%o(place) = not_written
    if (.not. present(given)) return
    select type (given)
    type is (integer(int32))
    type is (integer(int64))
    class default
      call self%refuse(name//' is no integer of 32 or 64 bits')
    end select
  end subroutine

  pure function address(given)
    type(c_ptr), intent(in), optional :: given
    type(c_ptr) :: address

    address = c_null_ptr
    if (present(given)) address = given
  end function

  !> Reports what is wrong with the arguments.
  subroutine refuse(self, message)
    class(entry_call), intent(inout) :: self
    character(*), intent(in) :: message
    integer(c_int64_t) :: status

    self%sound = .false.
    status = chartxml_refuse(message, len(message, c_int64_t))
  end subroutine

  ! Results

  !> Hands an output on, unless the entry point ended before it.
  subroutine give(self, place, target)
    class(entry_call), intent(in) :: self
    integer, intent(in) :: place
    class(*), intent(inout), optional :: target

    if (self%o(place) /= not_written) call assign(target, self%o(place))
  end subroutine

  subroutine finish(self, made, stat, errmsg)
    class(entry_call), intent(inout) :: self
    class(*), intent(inout), optional :: made, stat
    character(*), intent(inout), optional :: errmsg
    character(0) :: no_message
    integer(c_int64_t) :: refused

    if (present(errmsg)) then
      refused = ended(self, errmsg)
    else
      refused = ended(self, no_message)
    end if
    call assign(made, self%result)
    call assign(stat, refused)
    if (refused /= 0 .and. stopping .and. .not. self%takes_stat) stop 1, quiet=.true.
  end subroutine

  !> 1 when the call was refused, which its result or, where that does not tell, a report says.
  function ended(self, message) result(refused)
    class(entry_call), intent(in) :: self
    character(*), intent(inout) :: message
    integer(c_int64_t) :: refused

    refused = chartxml_endcall(self%name, len_trim(self%name, c_int64_t), &
      failed=number(self%result < 0 .or. self%any_result), &
      may_be_silent=number(self%answers .or. self%any_result), &
      wanted=number(self%takes_stat), buffer=message, &
      buffer_capacity=len(message, c_int64_t))
  end function

  pure integer(c_int64_t) function number(holds)
    logical, intent(in) :: holds

    number = merge(1, 0, holds)
  end function

  subroutine assign(target, value)
    class(*), intent(inout), optional :: target
    integer(c_int64_t), intent(in) :: value

    if (.not. present(target)) return
    select type (target)
    type is (integer(int32))
      target = int(value, int32)
    type is (integer(int64))
      target = value
    end select
  end subroutine

end module
