! Steps that charts of several procedures take. Texts are keys of the procedure's string
! table.
module drawings
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use korva
  use penguin_cases
  implicit none
  private
  public :: new_drawing, send
  public :: variable, factor_variable, computed, range_of
  public :: begin_row, store_name, store_cases
  public :: draw_axes, part, element, group, draw_legend

  !> A chart under construction and the nodes that several steps refer to.
  type, public :: drawing
    integer(cx) :: chart, source, graph, data
  end type

contains

  !> A chart of the procedure, with its title and what it shows for readers who do not see it.
  type(drawing) function new_drawing(observations, procedure_name, title, description) &
      result(plot)
    type(data_set), intent(in) :: observations
    character(*), intent(in) :: procedure_name, title, description

    plot%chart = made('a chart', create_chart(observations%dictionary, procedure_name, &
      plot%source, plot%graph, plot%data))
    call write_text(plot%chart, plot%graph, word_title, translated(title))
    call describe_chart(plot%chart, translated(description))
  end function

  subroutine send(plot)
    type(drawing), intent(in) :: plot

    call require(cx_endchart(plot%chart) >= 0, 'cannot send the chart')
  end subroutine

  function variable(plot, number, categorical)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: number, categorical
    integer(cx) :: variable

    variable = made('a variable', &
      cx_addvariable(plot%chart, plot%source, number, categorical))
  end function

  !> A variable of names, with the labels that the data set has for them.
  function factor_variable(plot, names)
    type(drawing), intent(in) :: plot
    type(factor), intent(in) :: names
    integer(cx) :: factor_variable

    factor_variable = variable(plot, names%number, true)
    call make('the labels of names', &
      cx_addrelabels(plot%chart, factor_variable, names%number))
  end function

  !> A variable whose values the procedure computes.
  function computed(plot, label, decimals)
    type(drawing), intent(in) :: plot
    character(*), intent(in) :: label
    integer, intent(in) :: decimals
    integer(cx) :: computed

    computed = made('a computed variable', cx_addaggregate(plot%chart, plot%source, absent, &
      false, made('a text', translated(label)), absent, absent))
    call make('a display format', cx_setvariableformat(plot%chart, computed, &
      display_format(plain_format, 8, decimals)))
  end function

  !> A variable that reaches from one variable to another.
  function range_of(plot, lower, upper)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: lower, upper
    integer(cx) :: range_of, list

    list = made('a list', cx_beginvariablelist(plot%chart))
    call make('the list', cx_addtovariablelist(plot%chart, list, lower))
    call make('the list', cx_addtovariablelist(plot%chart, list, upper))
    range_of = made('a range', cx_addrangevariable(plot%chart, list))
  end function

  subroutine begin_row(plot)
    type(drawing), intent(in) :: plot

    call require(cx_addrow(plot%chart, plot%source) >= 0, 'cannot add a row')
  end subroutine

  subroutine store_name(plot, column, name)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: column
    character(*), intent(in) :: name

    call require(cx_adddatavalue(plot%chart, plot%source, column, text(trim(name))) >= 0, &
      'cannot store a name')
  end subroutine

  !> A row for each case: its numbers, and its names when there are any.
  subroutine store_cases(plot, columns, numbers, name_columns, names)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: columns(:)
    real(dp), intent(in) :: numbers(:, :)
    integer(cx), intent(in), optional :: name_columns(:)
    type(factor), intent(in), optional :: names(:)
    integer :: i, n

    do i = 1, size(numbers, 1)
      call begin_row(plot)
      call store_numbers(plot%chart, plot%source, columns, numbers(i, :))
      if (.not. present(names)) cycle
      do n = 1, size(names)
        call store_name(plot, name_columns(n), names(n)%levels(names(n)%code(i)))
      end do
    end do
  end subroutine

  subroutine draw_axes(plot, x_title, y_title)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: x_title, y_title
    integer(cx) :: x_style, x_axis, y_style, y_axis

    call make('the axes', cx_addxydimensionwithaxis(plot%chart, plot%data, absent, absent, &
      false, false, x_style, x_axis, y_style, y_axis))
    call make('the title of x', &
      cx_addlabel(plot%chart, x_axis, x_style, made('a text', x_title)))
    call make('the title of y', &
      cx_addlabel(plot%chart, y_axis, y_style, made('a text', y_title)))
  end subroutine

  !> An element without a position yet; its style is the first one of a kind.
  function part(plot, type, style_kind)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: type, style_kind
    integer(cx) :: part

    part = made('an element', cx_addelement(plot%chart, plot%data, type, &
      made('a style', cx_stylestring(ignored, style_kind, 1_cx))))
  end function

  function element(plot, type, x, y, style_kind)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: type, x, y, style_kind
    integer(cx) :: element

    call make('an element', cx_addxyelementex(plot%chart, plot%data, 1_cx, type, x, y, &
      style_kind, element))
  end function

  !> Colors the marks of an element by a variable and puts those at one place side by side
  !> or on top of each other.
  subroutine group(plot, marks, by, modifier)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: marks, by, modifier

    call make('the colors', cx_addstylebycolor(plot%chart, marks, by))
    call make('the places', cx_setelementpositionmodifier(plot%chart, marks, modifier))
  end subroutine

  subroutine draw_legend(plot, explained, titled_by)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: explained, titled_by
    integer(cx) :: legend, style

    call make('the legend', cx_addlegendframe(plot%chart, plot%graph, explained, 1_cx, &
      word_style_by, ignored, style, legend))
    call make('the title of the legend', &
      cx_addlabel(plot%chart, legend, style, made('a text', variable_label(titled_by))))
  end subroutine

end module
