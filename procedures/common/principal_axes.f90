! Eigenvalues and eigenvectors for analyses of several measures at once (LAPACK).
module principal_axes
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts, only: require
  use least_squares, only: mean
  implicit none
  private
  public :: standardized, decompose, axes_of, correlations

  !> Scores of variance 1 on two axes, and the shares of the variance that these tell.
  type, public :: axes
    real(dp), allocatable :: scores(:, :)
    real(dp) :: share(2), explained  !< explained by all axes
  end type

  ! Eigenvalues, in ascending order, and eigenvectors of a symmetric matrix.
  interface
    subroutine dsyev(jobz, uplo, n, a, lda, w, work, lwork, info)
      import :: dp
      character, intent(in) :: jobz, uplo
      integer, intent(in) :: n, lda, lwork
      real(dp), intent(inout) :: a(lda, *)
      real(dp), intent(out) :: w(*), work(*)
      integer, intent(out) :: info
    end subroutine
  end interface

contains

  !> Each column with mean 0 and standard deviation 1.
  function standardized(values) result(scores)
    real(dp), intent(in) :: values(:, :)
    real(dp) :: scores(size(values, 1), size(values, 2)), spread
    integer :: m

    do m = 1, size(values, 2)
      spread = sqrt(sum((values(:, m) - mean(values(:, m)))**2)/(size(values, 1) - 1))
      call require(spread > 0, 'no components: a measure has one value only')
      scores(:, m) = (values(:, m) - mean(values(:, m)))/spread
    end do
  end function

  !> The eigenvalues of a symmetric matrix, the largest first, and their vectors. Either
  !> direction of a vector is a solution: its largest weight is positive here.
  subroutine decompose(matrix, eigenvalues, vectors)
    real(dp), intent(in) :: matrix(:, :)
    real(dp), intent(out) :: eigenvalues(:), vectors(:, :)
    real(dp) :: ascending(size(matrix, 1)), work(64*size(matrix, 1))
    integer :: n, m, info

    n = size(matrix, 1)
    vectors = matrix
    call dsyev('V', 'U', n, vectors, n, ascending, work, size(work), info)
    call require(info == 0, 'the eigenvalue problem has no solution')
    eigenvalues = ascending(n:1:-1)
    vectors = vectors(:, n:1:-1)
    do m = 1, n
      vectors(:, m) = sign(1.0_dp, vectors(maxloc(abs(vectors(:, m)), dim=1), m))*vectors(:, m)
    end do
  end subroutine

  !> The first two axes of columns with mean 0, which stand for standardized measures.
  function axes_of(columns) result(found)
    real(dp), intent(in) :: columns(:, :)
    type(axes) :: found
    real(dp) :: variances(size(columns, 2)), vectors(size(columns, 2), size(columns, 2))
    integer :: i

    call decompose(matmul(transpose(columns), columns)/(size(columns, 1) - 1), variances, vectors)
    found%share = variances(:2)/size(columns, 2)
    found%explained = sum(variances)/size(columns, 2)
    allocate (found%scores(size(columns, 1), 2))
    do i = 1, 2
      found%scores(:, i) = matmul(columns, vectors(:, i))/sqrt(variances(i))
    end do
  end function

  !> Correlations of standardized measures with the scores.
  pure function correlations(measures, scores)
    real(dp), intent(in) :: measures(:, :), scores(:, :)
    real(dp) :: correlations(size(measures, 2), size(scores, 2))

    correlations = matmul(transpose(measures), scores)/(size(measures, 1) - 1)
  end function

end module
