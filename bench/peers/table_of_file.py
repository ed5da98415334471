"""table_of_file.py FOLDER CSV OUT COLUMNS writes a table of a file as "quorvane table" does, by the
Python package in this folder.
"""

import sys

folder, csv_path, out_path, columns = sys.argv[1:]
sys.path.insert(0, folder)

import quorvane

quorvane.table_of_file_to(out_path, csv_path, columns)
