"""File systems as one program sees them, in a mount namespace of its own."""

import os


class MountOfOnesOwn:
    """Put `prefix` before a command to run it with `script`, lines of sh, done to its mounts first."""

    def __init__(self, desktop, script):
        self._desktop = desktop
        namespaces = ["--mount"] if os.geteuid() == 0 else ["--user", "--map-current-user", "--keep-caps", "--mount"]
        self.prefix = ["unshare", *namespaces, "--propagation", "private", "sh", "-c", f'set -e; {script}; exec "$@"', "sh"]

    def obstacle(self):
        """Why this can't be done here, or None."""
        attempt = self._desktop.processes.start("unshare", *self.prefix, "true")
        if attempt.wait() == 0:
            return None
        return f"no mount namespace of one's own here: {attempt.output().strip()}"
