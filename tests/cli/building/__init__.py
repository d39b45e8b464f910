"""Buildings as an engineer would hand them over, made from a seed: plan, stories, members, loads, and both files."""
