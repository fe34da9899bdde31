Attribute VB_Name = "Module1"
Option Explicit

