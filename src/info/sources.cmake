# Update check, feedback and about.
