Attribute VB_Name = "CodeModule1"
Option Explicit

