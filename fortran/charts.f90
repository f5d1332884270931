! What procedures use beside module chartxml: texts as Fortran has them, names for
! common numbers, and a short way to stop when something is refused.
module charts
  use, intrinsic :: iso_c_binding, only: c_double, c_int64_t, c_null_ptr, c_ptr
  use, intrinsic :: iso_fortran_env, only: error_unit
  use chartxml
  use korva, only: data_set
  implicit none
  private
  public :: open_observations
  public :: create_chart, describe_chart, write_text, declared_variable, computed_variable
  public :: start_row, store_numbers, title_axis, send_chart
  public :: text, translated, composed, listed, number_text, variable_label
  public :: display_format, format_type
  public :: made, make, require
  public :: first_argument

  !> The kind of every integer of module chartxml: 1_cx.
  integer, parameter, public :: cx = c_int64_t

  integer(cx), parameter, public :: absent = -1    !< an optional argument that is not given
  integer(cx), parameter, public :: false = 0, true = 1
  integer(cx), parameter, public :: ignored = 0    !< an argument that is never read

  ! String handles of the predefined words that procedures name most.
  integer(cx), parameter, public :: word_footnote = 13, word_subtitle = 16, word_title = 17
  integer(cx), parameter, public :: word_area = 18, word_interval = 20, word_line = 21
  integer(cx), parameter, public :: word_point = 23, word_schema = 24
  integer(cx), parameter, public :: word_polar = 31, word_style_by = 36
  integer(cx), parameter, public :: word_simple_bar = 41, word_stacked_bar = 42
  integer(cx), parameter, public :: word_simple_line = 43, word_histogram = 44
  integer(cx), parameter, public :: word_box_plot = 61, word_error_bar = 69
  integer(cx), parameter, public :: word_type = 71, word_normal = 72, word_distribution = 73
  integer(cx), parameter, public :: word_stack = 87, word_dodge = 88, word_natural = 93
  integer(cx), parameter, public :: word_stacked_area = 95, word_scatter = 96
  integer(cx), parameter, public :: word_count = 140, word_clustered_bar = 146

  !> Pattern of listed(): each item on a line of its own.
  character(*), parameter, public :: one_a_line = '[%1:\n^1:]1'

  ! Type codes of display formats.
  integer, parameter, public :: text_format = 1, dollar_format = 4, plain_format = 5
  integer, parameter, public :: percent_format = 31

contains

  !> Opens the data set that the command line names, else the one at `otherwise`; variable v
  !> of the run is the column names(v), and from `numbers` on they have to be numbers or dates.
  subroutine open_observations(observations, procedure_name, otherwise, names, numbers)
    type(data_set), intent(inout) :: observations
    character(*), intent(in) :: procedure_name, otherwise, names(:)
    integer(cx), intent(in) :: numbers
    character(:), allocatable :: path
    integer :: columns(size(names)), v

    path = first_argument(otherwise)
    call require(observations%open(path), 'cannot open the data set '//path)
    columns = [(observations%find_column(trim(names(v))), v=1, size(names))]
    call require(all(columns > 0), 'this is not the data set that was expected')
    call require(observations%use_variables(columns), 'cannot use the variables')
    call require_numbers(observations, procedure_name, numbers, size(names, kind=cx))
  end subroutine

  !> A row's cells would not tell a text from a number; the display format does, which a
  !> chart knows.
  subroutine require_numbers(observations, procedure_name, first, last)
    type(data_set), intent(in) :: observations
    character(*), intent(in) :: procedure_name
    integer(cx), intent(in) :: first, last
    integer(cx) :: chart, variable, format

    chart = made('a chart', cx_createchart(c_null_ptr, observations%dictionary, &
      procedure_name, len(procedure_name, kind=cx)))
    do variable = first, last
      format = made('a display format', cx_getvariableformat(chart, variable))
      call require(format_type(format) /= text_format, 'a column is not of numbers')
    end do
    call make('the end of the chart', cx_killchart(chart))
  end subroutine

  !> cx_createchartex for the data set behind `dictionary`.
  function create_chart(dictionary, procedure_name, source, graph, data) result(chart)
    type(c_ptr), intent(in) :: dictionary
    character(*), intent(in) :: procedure_name
    integer(cx), intent(inout) :: source, graph, data
    integer(cx) :: chart, same_chart

    chart = cx_createchartex(c_null_ptr, dictionary, procedure_name, &
      len(procedure_name, kind=cx), same_chart, source, graph, data)
  end function

  !> Describes the chart for readers who do not see it, by a string handle.
  subroutine describe_chart(chart, description)
    integer(cx), intent(in) :: chart, description

    call require(cx_createchartdescription(chart, made('a text', description)) >= 0, &
      'cannot describe the chart')
  end subroutine

  !> Describes the chart and ends it.
  subroutine send_chart(chart, description)
    integer(cx), intent(in) :: chart, description

    call describe_chart(chart, description)
    call require(cx_endchart(chart) >= 0, 'cannot send the chart')
  end subroutine

  !> Puts a text of its own into the chart's graph frame: title, subtitle or footnote, as
  !> `style` says.
  subroutine write_text(chart, graph, style, string)
    integer(cx), intent(in) :: chart, graph, style, string

    call make('a text of the chart', &
      cx_addframewithlabel(chart, graph, style, 1_cx, made('a text', string)))
  end subroutine

  !> A variable of the run as a variable of the chart.
  function declared_variable(chart, source, number, categorical) result(variable)
    integer(cx), intent(in) :: chart, source, number, categorical
    integer(cx) :: variable

    variable = made('a variable', cx_addvariable(chart, source, number, categorical))
  end function

  !> A variable whose values the procedure computes, with its label and display format;
  !> word_count as name when it counts cases.
  function computed_variable(chart, source, label, format, name) result(variable)
    integer(cx), intent(in) :: chart, source, label, format
    integer(cx), intent(in), optional :: name
    integer(cx) :: variable, used

    used = absent
    if (present(name)) used = name
    variable = made('a computed variable', cx_addaggregate(chart, source, used, false, &
      made('a text', label), absent, absent))
    if (format /= absent) &
      call make('a display format', cx_setvariableformat(chart, variable, format))
  end function

  !> Puts a title beside an axis or above a legend, in the node's own style.
  subroutine title_axis(chart, axis, style, string)
    integer(cx), intent(in) :: chart, axis, style, string

    call make('the title of an axis or legend', &
      cx_addlabel(chart, axis, style, made('a text', string)))
  end subroutine

  subroutine start_row(chart, source)
    integer(cx), intent(in) :: chart, source

    call require(cx_addrow(chart, source) >= 0, 'cannot add a row')
  end subroutine

  !> Stores a number in each of the columns of the row that was added last.
  subroutine store_numbers(chart, source, columns, numbers)
    integer(cx), intent(in) :: chart, source, columns(:)
    real(c_double), intent(in) :: numbers(:)
    integer :: i

    do i = 1, size(columns)
      call require(cx_adddoubledatavalue(chart, source, columns(i), numbers(i)) >= 0, &
        'cannot store a number')
    end do
  end subroutine

  ! Texts: each function gives a string handle, or -1

  function text(characters) result(string)
    character(*), intent(in) :: characters
    integer(cx) :: string

    string = cx_string(ignored, characters, len(characters, kind=cx))
  end function

  !> The text of a key of the procedure's string table in the output language.
  function translated(key) result(string)
    character(*), intent(in) :: key
    integer(cx) :: string

    string = cx_nstring(ignored, key, len(key, kind=cx))
  end function

  !> The pattern, or the text of its key in the string table, with "^1", "^2" ... replaced
  !> by the parameters, which are string handles themselves.
  function composed(pattern, parameters) result(string)
    character(*), intent(in) :: pattern
    integer(cx), intent(in) :: parameters(:)
    integer(cx) :: string

    string = cx_compositestring(ignored, pattern, len(pattern, kind=cx))
    if (added(string, parameters)) then
      string = cx_endcompositestring(ignored, string)
    else
      string = -1
    end if
  end function

  !> The pattern with its repeat list filled with the items: '[%1:, ^1:]1' puts a comma
  !> before each but the first.
  function listed(pattern, items) result(string)
    character(*), intent(in) :: pattern
    integer(cx), intent(in) :: items(:)
    integer(cx) :: string
    logical :: filled

    string = cx_compositestring(ignored, pattern, len(pattern, kind=cx))
    filled = cx_beginrepeat(ignored, string) >= 0
    if (filled) filled = added(string, items)
    if (filled) filled = cx_endrepeat(ignored, string) >= 0
    if (filled) then
      string = cx_endcompositestring(ignored, string)
    else
      string = -1
    end if
  end function

  !> Whether each of the parameters could be added to an open composite.
  logical function added(composite, parameters)
    integer(cx), intent(in) :: composite, parameters(:)
    integer :: i

    added = composite >= 0
    do i = 1, size(parameters)
      if (added) added = cx_addparameter(ignored, composite, parameters(i)) >= 0
    end do
  end function

  !> A number 8 places wide with that many decimals, in the plain format or another.
  function number_text(number, decimals, type) result(string)
    real(c_double), intent(in) :: number
    integer, intent(in) :: decimals
    integer, intent(in), optional :: type
    integer(cx) :: string
    integer :: used

    used = plain_format
    if (present(type)) used = type
    string = cx_lrvalueasstring(number, display_format(used, 8, decimals))
  end function

  function variable_label(variable_number) result(string)
    integer(cx), intent(in) :: variable_number
    integer(cx) :: string

    string = cx_variablelabel(ignored, ignored, variable_number)
  end function

  !> A display format, packed as the library takes it.
  pure function display_format(type, width, decimals) result(format)
    integer, intent(in) :: type, width, decimals
    integer(cx) :: format

    format = int(ior(ishft(type, 16), ior(ishft(width, 8), decimals)), cx)
  end function

  !> The type code of a packed display format.
  pure integer function format_type(format)
    integer(cx), intent(in) :: format

    format_type = int(ishft(format, -16))
  end function

  ! Refusals: the library has written its reason to standard error

  !> Hands on what an entry point gave; a negative result stops the program.
  function made(what, result) result(handle)
    character(*), intent(in) :: what
    integer(cx), intent(in) :: result
    integer(cx) :: handle

    call require(result >= 0, 'cannot make '//what)
    handle = result
  end function

  !> The same for a handle that is not needed again.
  subroutine make(what, result)
    character(*), intent(in) :: what
    integer(cx), intent(in) :: result

    call require(result >= 0, 'cannot make '//what)
  end subroutine

  !> Stops the program with `otherwise` and exit code 1 when a condition does not hold.
  subroutine require(condition, otherwise)
    logical, intent(in) :: condition
    character(*), intent(in) :: otherwise

    if (condition) return
    write (error_unit, '(a)') otherwise
    stop 1, quiet=.true.
  end subroutine

  ! The command line

  function first_argument(otherwise) result(argument)
    character(*), intent(in) :: otherwise
    character(:), allocatable :: argument
    integer :: length

    argument = otherwise
    if (command_argument_count() == 0) return
    call get_command_argument(1, length=length)
    deallocate (argument)
    allocate (character(length) :: argument)
    call get_command_argument(1, argument)
  end function

end module
