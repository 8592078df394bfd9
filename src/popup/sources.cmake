# The popup presenter.
