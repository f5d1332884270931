! A polynomial that is fitted by least squares, with limits of the mean and of single values.
module regression_bands
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts, only: require
  use least_squares, only: fitted_polynomial, explained_share, mean
  use positive_definite, only: inverse_of
  use student_t, only: quantile
  implicit none
  private
  public :: regression_of, even_places

  type, public :: regression
    real(dp), allocatable :: coefficients(:)  !< the constant first
    real(dp) :: error                         !< standard error of a single value
    real(dp) :: r_squared
    integer :: cases
    real(dp), private :: center, scale
    real(dp), private :: widest  !< of the limits, in standard errors
    real(dp), allocatable, private :: inverse(:, :)
  contains
    procedure :: predicted
    procedure :: reach
  end type

contains

  !> The regression of y on powers of x; limits hold with the confidence, 0.95 for one.
  function regression_of(x, y, degree, confidence) result(fit)
    real(dp), intent(in) :: x(:), y(:), confidence
    integer, intent(in) :: degree
    type(regression) :: fit
    real(dp) :: design(size(x), degree + 1), fitted(size(x))
    integer :: i

    fit%cases = size(x)
    call require(fit%cases > degree + 1, 'no curve: it has as many coefficients as cases')
    fit%coefficients = fitted_polynomial(x, y, degree)
    fit%center = mean(x)
    fit%scale = sqrt(mean((x - fit%center)**2))
    do i = 1, size(x)
      design(i, :) = powers(fit, x(i))
      fitted(i) = fit%predicted(x(i))
    end do
    fit%inverse = inverse_of(matmul(transpose(design), design), &
      'no curve: it needs more different values of x')
    fit%error = sqrt(sum((y - fitted)**2)/(fit%cases - degree - 1))
    fit%r_squared = explained_share(y, fitted)
    fit%widest = quantile(confidence, fit%cases - degree - 1)
  end function

  !> Where a curve is drawn: at even steps from the least x to the greatest.
  pure function even_places(x, count) result(places)
    real(dp), intent(in) :: x(:)
    integer, intent(in) :: count
    real(dp) :: places(count)
    integer :: i

    places = [(minval(x) + (maxval(x) - minval(x))*i/(count - 1), i=0, count - 1)]
  end function

  !> The powers of x in the design. Around their mean and in units of their spread they
  !> hardly depend on each other.
  pure function powers(fit, x)
    class(regression), intent(in) :: fit
    real(dp), intent(in) :: x
    real(dp) :: powers(size(fit%coefficients))
    integer :: power

    powers = [(((x - fit%center)/fit%scale)**power, power=0, size(powers) - 1)]
  end function

  elemental real(dp) function predicted(self, x)
    class(regression), intent(in) :: self
    real(dp), intent(in) :: x
    integer :: power

    predicted = 0
    do power = size(self%coefficients), 1, -1
      predicted = predicted*x + self%coefficients(power)
    end do
  end function

  !> How far the limits are from the curve at x: those of the mean, or of `single` values.
  elemental real(dp) function reach(self, x, single)
    class(regression), intent(in) :: self
    real(dp), intent(in) :: x
    logical, intent(in) :: single
    real(dp) :: z(size(self%coefficients)), share

    z = powers(self, x)
    share = dot_product(z, matmul(self%inverse, z))
    if (single) share = share + 1
    reach = self%widest*self%error*sqrt(share)
  end function

end module
