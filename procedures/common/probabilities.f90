! Distributions of statistics that procedures compute, beside Student's.
module probabilities
  use, intrinsic :: iso_c_binding, only: dp => c_double
  implicit none
  private
  public :: normal_probability, chi_squared_tail, range_of_normals

  real(dp), parameter :: pi = acos(-1.0_dp)

  !> Mean and standard deviation of the range of a sample from the standard normal
  !> distribution: what quality control calls d2 and d3.
  type, public :: range_moments
    real(dp) :: mean, deviation
  end type

contains

  elemental real(dp) function normal_probability(x)
    real(dp), intent(in) :: x

    normal_probability = erfc(-x/sqrt(2.0_dp))/2
  end function

  !> How probable a value of x or more is, with whole degrees of freedom: a finite sum.
  pure real(dp) function chi_squared_tail(x, freedom) result(tail)
    real(dp), intent(in) :: x
    integer, intent(in) :: freedom
    integer :: k

    if (mod(freedom, 2) == 0) then
      tail = 0
    else
      tail = erfc(sqrt(x/2))
    end if
    do k = 2 + mod(freedom, 2), freedom, 2
      tail = tail + (x/2)**(k/2.0_dp - 1)*exp(-x/2)/gamma(k/2.0_dp)
    end do
  end function

  !> Moments of the range of `cases` values (Simpson's rule over the widths of the range).
  pure type(range_moments) function range_of_normals(cases) result(moments)
    integer, intent(in) :: cases
    integer, parameter :: intervals = 1200
    real(dp), parameter :: widest = 12, h = widest/intervals
    real(dp) :: wider, mean, square
    integer :: i

    mean = 0
    square = 0
    do i = 0, intervals
      wider = merge(4, merge(1, 2, i == 0), mod(i, 2) == 1)*wider_range(i*h, cases)*h/3
      mean = mean + wider
      square = square + 2*i*h*wider
    end do
    moments = range_moments(mean, sqrt(square - mean**2))
  end function

  !> How probable it is that the range of a sample is wider.
  pure real(dp) function wider_range(width, cases) result(wider)
    real(dp), intent(in) :: width
    integer, intent(in) :: cases
    real(dp), parameter :: h = 0.1_dp
    integer, parameter :: reach = 80
    integer :: i

    wider = 1
    do i = -2*reach, reach
      associate (x => i*h)
        wider = wider - cases*h*exp(-x**2/2)/sqrt(2*pi) &
          *(normal_probability(x + width) - normal_probability(x))**(cases - 1)
      end associate
    end do
  end function

end module
