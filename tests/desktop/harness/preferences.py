"""Stored preferences that keep the program quiet where a test is about something else."""

NO_NOTIFICATIONS = {"notificationsConfigured": "true", "notificationsEnabled": "false"}
# Without chimes too; the first key says that they have been switched off.
QUIET = {**NO_NOTIFICATIONS, "hasLaunchedBefore": "true", "soundEnabled": "false"}
