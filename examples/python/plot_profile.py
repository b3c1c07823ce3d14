# %% [markdown]
# # A flow rate profile, before and after
#
# Fast through the part, slow where jetting and burning begin: at the gate, and at the end of
# filling.

# %%
from pathlib import Path

import matplotlib.pyplot as plt

import qelpro

path = Path("profile.pro")
path.unlink(missing_ok=True)
qelpro.new(path)
file = qelpro.ProcessFile(path)

# %% [markdown]
# What the file has now: a flow rate that stays the same.

# %%
figure, axes = plt.subplots()
file.plot("Flow-1.FR", ax=axes, label="before", linestyle="--")
print(file.profile("Flow-1", "FR"))

# %% [markdown]
# Six points instead of two. The count and the points are stored in one write.

# %%
file.set_profile("Flow-1", "FR", [[0, 15], [10, 20], [25, 60], [80, 60], [95, 25], [100, 20]])
file.plot("Flow-1.FR", ax=axes, label="after")
print(file.profile("Flow-1", "FR"))

# %% [markdown]
# The axes carry the file's units. Nothing is wrong with the file:

# %%
axes.set_ylim(bottom=0)
axes.legend()
figure.savefig("profile.png")
print("findings:", file.check())
