! Steps that charts of several procedures take. Texts are keys of the procedure's string
! table.
module drawings
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use chartxml
  use korva, only: data_set
  use penguin_cases, only: factor
  implicit none
  private
  public :: new_drawing, factor_variable, categories, computed, range_of, domain_between
  public :: load_side_by_side, draw_axes, draw_level, group, draw_legend, name_element

  !> A chart under construction and the nodes that several steps refer to.
  type, public :: drawing
    integer :: chart, source, graph, data
  end type

contains

  !> A chart of the procedure, with its title and what it shows for readers who do not see it,
  !> unless these are written later.
  type(drawing) function new_drawing(observations, procedure_name, title, description) &
      result(plot)
    type(data_set), intent(in) :: observations
    character(*), intent(in) :: procedure_name
    character(*), intent(in), optional :: title, description

    call new_chart_with_frames(procedure_name, plot%chart, observations%dictionary, &
      source=plot%source, graph=plot%graph, data=plot%data)
    if (present(title)) &
      call add_frame_with_label(plot%chart, plot%graph, string_title, 1, translation(title))
    if (present(description)) call set_chart_description(plot%chart, translation(description))
  end function

  !> A variable of names, with the labels that the data set has for them.
  function factor_variable(plot, names)
    type(drawing), intent(in) :: plot
    type(factor), intent(in) :: names
    integer :: factor_variable

    call add_variable(plot%chart, plot%source, names%number, categorical=.true., &
      handle=factor_variable)
    call add_relabels(plot%chart, factor_variable, names%number)
  end function

  !> A variable of the run whose numbers have labels; of the first source unless another is
  !> given.
  function categories(plot, number, source)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: number
    integer, intent(in), optional :: source
    integer :: categories, of

    of = plot%source
    if (present(source)) of = source
    call add_variable(plot%chart, of, number, categorical=.true., handle=categories)
    call add_relabels(plot%chart, categories, number)
  end function

  !> A variable whose values the procedure computes; of the first source unless another is
  !> given, by itself or by a variable of it.
  function computed(plot, label, decimals, source)
    type(drawing), intent(in) :: plot
    character(*), intent(in) :: label
    integer, intent(in) :: decimals
    integer, intent(in), optional :: source
    integer :: computed, of

    of = plot%source
    if (present(source)) of = source
    call add_aggregate(plot%chart, of, label=translation(label), handle=computed)
    call set_variable_format(plot%chart, computed, packed_format(format_plain, 8, decimals))
  end function

  !> A variable that reaches from one variable to another.
  function range_of(plot, lower, upper)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: lower, upper
    integer :: range_of, list

    call begin_variable_list(plot%chart, handle=list)
    call add_to_variable_list(plot%chart, list, lower)
    call add_to_variable_list(plot%chart, list, upper)
    call add_range_variable(plot%chart, list, handle=range_of)
  end function

  !> What an axis shows: the values of some variables, and all from `low` to `high`.
  function domain_between(plot, low, high, variables)
    type(drawing), intent(in) :: plot
    real(dp), intent(in) :: low, high
    integer, intent(in) :: variables(:)
    integer :: domain_between, i

    call add_domain(plot%chart, handle=domain_between)
    call add_interval_ex(plot%chart, real_string(low), real_string(high), domain_between)
    do i = 1, size(variables)
      call add_domain_reference(plot%chart, variables(i), domain_between)
    end do
  end function

  !> A row for each place and each of some variables of the run, whose labels tell the rows
  !> apart: values(i, k) is that of variables(k) at places(i).
  subroutine load_side_by_side(plot, place, by, value, places, variables, values)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: place, by, value  !< variables of the chart
    real(dp), intent(in) :: places(:), values(:, :)
    integer, intent(in) :: variables(:)
    integer :: i, k

    do i = 1, size(places)
      do k = 1, size(variables)
        call add_row(plot%chart)
        call add_double_data_value(plot%chart, place, places(i))
        call add_data_value(plot%chart, by, label_of_variable(variables(k)))
        call add_double_data_value(plot%chart, value, values(i, k))
      end do
    end do
  end subroutine

  !> y_decimals: how many decimals the y axis shows, where its values have others.
  subroutine draw_axes(plot, x_title, y_title, x_domain, y_domain, y_decimals)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: x_title, y_title
    integer, intent(in), optional :: x_domain, y_domain, y_decimals
    integer :: x_style, x_axis, y_style, y_axis, format

    call add_xy_dimensions_with_axes(plot%chart, plot%data, x_domain, y_domain, &
      x_style=x_style, x_axis=x_axis, y_style=y_style, y_axis=y_axis)
    call add_label(plot%chart, x_axis, x_style, x_title)
    call add_label(plot%chart, y_axis, y_style, y_title)
    if (.not. present(y_decimals)) return
    call add_number_format(plot%chart, y_axis, handle=format)
    call set_number_format_max_fraction_digits(plot%chart, format, integer_string(y_decimals))
  end subroutine

  !> Colors the marks of an element by a variable and puts those at one place side by side
  !> or on top of each other.
  subroutine group(plot, marks, by, modifier)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: marks, by, modifier

    call add_style_by_color(plot%chart, marks, by)
    call set_element_position_modifier(plot%chart, marks, modifier)
  end subroutine

  !> A line across the plot at a value of y, under a name, a key of the string table; the
  !> index is that of its style and, unless another is given, of its legend.
  subroutine draw_level(plot, value, name, index, legend_index)
    type(drawing), intent(in) :: plot
    real(dp), intent(in) :: value
    character(*), intent(in) :: name
    integer, intent(in) :: index
    integer, intent(in), optional :: legend_index
    integer :: line, legend

    legend = index
    if (present(legend_index)) legend = legend_index
    call add_y_reference_line(plot%chart, plot%data, real_string(value), guide_style=index, &
      handle=line)
    call name_element(plot, line, name, legend)
  end subroutine

  !> The legend of what colors an element, or another aesthetic does, with a title.
  subroutine draw_legend(plot, explained, title, aesthetic)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: explained, title
    integer, intent(in), optional :: aesthetic
    integer :: legend, style, by

    by = string_style_by
    if (present(aesthetic)) by = aesthetic
    call add_legend_frame(plot%chart, plot%graph, explained, 1, aesthetic=by, style=style, &
      legend=legend)
    call add_label(plot%chart, legend, style, title)
  end subroutine

  !> Gives an element a name, a key of the string table, and a legend that explains it.
  subroutine name_element(plot, element, name, index)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: element, index
    character(*), intent(in) :: name

    call set_element_name(plot%chart, element, translation(name))
    call add_legend_frame_of(plot%chart, plot%graph, element, index)
  end subroutine

end module
