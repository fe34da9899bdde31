"""The tests that are nearest to a folder. They run first; all others follow if these notice nothing."""
import os

# A folder without a row has that of the folder around it.
NEAREST = {
    "Basic": ["basic"],
    "Add-in/platform": ["platform", "core"],
    "Add-in/core": ["core", "connect"],
    "Add-in/core/connect": ["connect"],
    "Add-in/devices": ["devices"],
    "Add-in/commands": ["commands"],
    "Add-in/project": ["project"],
    "Add-in/build": ["build"],
    "Add-in/settings": ["settings"],
    "Add-in/deploy": ["deploy"],
    "Add-in/zoom": ["zoom"],
    "Add-in/lifecycle": ["lifecycle", "connect"],
    "Host": ["host"],
    "Host/registry": ["host_system"],
    "Host/system": ["host_system"],
    "Components": ["qltoolkit", "pipes"],
    "Components/QLToolkit": ["qltoolkit"],
    "Components/DesignTargetAccess": ["designtargets"],
    "Components/QLPipe": ["pipes"],
    "Components/Image": ["image_code", "qltoolkit", "pipes"],
    "Components/Tamarik": ["tamarik_vm", "language_programs", "tamarik_library", "tamarik"],
    "Apps/common": ["cli"],
    "Apps/fernwick": ["cli"],
    "Apps/tamarik": ["tamarik_vm", "language_programs"],
    "Apps/workbench": ["workbench"],
}


def nearest(path):
    """Of a file. KeyError if no folder around it has a row."""
    folder = os.path.dirname(path)
    while folder and folder not in NEAREST:
        folder = os.path.dirname(folder)
    return NEAREST[folder]
