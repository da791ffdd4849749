"""File lists and change logs of available packages."""

from yum import Errors

from . import base, config, errors, locks, report


def load_file_lists(session):
    """DNF's sack holds the file lists from the start, because packages may require files; so this only
    sees that there is one, reading it when there is none yet."""
    if session.base.sack is None:
        session.fill_sack()
    report.job_state("done", False)


def load_change_logs(session):
    """Loads the repositories once more with their change logs, into a sack of its own: one that is read
    takes no further data. What is in the cache is not fetched again."""
    if session.base.other is not None:
        return
    enabled = {repo.id for repo in session.base.repos.iter_enabled()}
    other = base.Base(session.conf)
    try:
        report.job_state("metadata", True)
        with errors.translated():
            config.read_repositories(session.conf, other.repos)
            for repo in other.repos.values():
                if repo.id in enabled:
                    repo.enable()
                    repo.load_metadata_other = True
                else:
                    repo.disable()
            try:
                base.load(other)
            except Errors.CancelledError:
                raise
            except Errors.RepoError as error:
                raise Errors.NoMoreMirrorsRepoError(error.value) from error
            locks.guarded("metadata", True, lambda: other.fill_sack(load_system_repo=False))
    except BaseException:
        other.close()
        raise
    finally:
        report.job_state("done", False)
    session.base.other = other
